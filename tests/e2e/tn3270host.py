"""A host with one screen, for terminals of 24 lines of 80 columns that speak TN3270 with it."""

import socket

COLUMNS = 80

# Telnet
END_OF_RECORD, SE, SB, WILL, DO, IAC = (bytes([code]) for code in (239, 240, 250, 251, 253, 255))
BINARY, TERMINAL_TYPE, RECORDS = (bytes([code]) for code in (0, 24, 25))
SEND = b"\x01"

# The data stream
ERASE_AND_WRITE, READ_MODIFIED = b"\xf5", b"\xf6"
FREE_THE_KEYBOARD = b"\xc3"
AT = b"\x11"


class Host:
    """Listens on this machine alone, for one terminal. Use with `with`."""

    def __init__(self, patience=20):
        self.patience = patience
        self.terminal = None
        self.heard = b""

    def __enter__(self):
        self.listening = socket.create_server(("127.0.0.1", 0))
        self.listening.settimeout(self.patience)
        self.port = self.listening.getsockname()[1]
        return self

    def __exit__(self, *_):
        if self.terminal:
            self.terminal.close()
        self.listening.close()

    def greet(self):
        """Waits for the terminal and agrees with it on records of bytes."""
        self.terminal, _ = self.listening.accept()
        self.terminal.settimeout(self.patience)
        self.terminal.sendall(IAC + DO + TERMINAL_TYPE)
        self.hear(IAC + WILL + TERMINAL_TYPE)
        self.terminal.sendall(IAC + SB + TERMINAL_TYPE + SEND + IAC + SE)
        self.hear(IAC + SE)
        for option in (RECORDS, BINARY):
            self.terminal.sendall(IAC + DO + option + IAC + WILL + option)
            self.hear(IAC + WILL + option)
            self.hear(IAC + DO + option)

    def show(self, lines):
        """Writes the lines on the empty screen and waits until the terminal has them; cells after them stay null."""
        places = (AT + (row * COLUMNS).to_bytes(2, "big") + line.encode("cp037") for row, line in enumerate(lines))
        self.send(ERASE_AND_WRITE + FREE_THE_KEYBOARD + b"".join(places))
        self.send(READ_MODIFIED)
        self.hear(IAC + END_OF_RECORD)

    def send(self, record):
        self.terminal.sendall(record.replace(IAC, IAC + IAC) + IAC + END_OF_RECORD)

    def hear(self, awaited):
        while awaited not in self.heard:
            received = self.terminal.recv(4096)
            if not received:
                raise ConnectionError("the terminal has gone")
            self.heard += received
        self.heard = self.heard[self.heard.index(awaited) + len(awaited):]
