"""The real program with arguments, of which it takes none, not even those of its toolkit."""

import subprocess

from tests.display.display import DisplayTest, main

SENTENCE = b"PlotVue takes no arguments: it charts the screen on the clipboard.\n"
ARGUMENTS = (["product.txt"], ["-style", "windows"], ["-platform", "offscreen"], ["-session", "1a_2b"], ["--help"],
             ["--version"], ["-"], [""])


def said(program, arguments, env):
    ran = subprocess.run([program, *arguments], env=env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                         stderr=subprocess.PIPE, timeout=20, check=False)
    return ran.returncode, ran.stdout, ran.stderr


class Arguments(DisplayTest):
    def refuses_all(self):
        for arguments in ARGUMENTS:
            with self.subTest(arguments):
                self.assertEqual(said(self.program, arguments, self.display.env), (2, b"", SENTENCE))

    def test_one_sentence_refuses_them(self):
        self.refuses_all()

    def test_also_without_a_display(self):
        del self.display.env["DISPLAY"]
        self.refuses_all()


if __name__ == "__main__":
    main()
