// plotvue-sessionmanager: the session manager of an X desktop, for one program. It prints its address, which
// the program needs as SESSION_MANAGER. When it reads "local", "global" or "both", it ends the session: it
// asks the program for this kind of save, prints the program's restart hint (3: never restart) and tells the
// program to end.
#include <X11/SM/SMlib.h>
#include <cstdlib>
#include <iostream>
#include <map>
#include <poll.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

SmsConn program = nullptr;
int restart = -1; // the program's restart hint; -1: it has given none

Status registerProgram(SmsConn connection, SmPointer, char* previous)
{
    std::free(previous);
    program = connection;
    return SmsRegisterClientReply(connection, SmsGenerateClientID(connection));
}

void setProperties(SmsConn, SmPointer, int count, SmProp** properties)
{
    for (int i = 0; i < count; ++i) {
        if (std::string_view(properties[i]->name) == SmRestartStyleHint)
            restart = *static_cast<unsigned char*>(properties[i]->vals->value);
        SmFreeProperty(properties[i]);
    }
    std::free(properties);
}

void saved(SmsConn connection, SmPointer, int)
{
    std::cout << restart << std::endl;
    SmsDie(connection);
}

Status welcome(SmsConn, SmPointer, unsigned long* answered, SmsCallbacks* callbacks, char**)
{
    *callbacks = {};
    callbacks->register_client.callback = registerProgram;
    callbacks->set_properties.callback = setProperties;
    callbacks->save_yourself_done.callback = saved;
    callbacks->interact_request.callback = [](SmsConn connection, SmPointer, int) {
        SmsInteract(connection);
    };
    callbacks->interact_done.callback = [](SmsConn, SmPointer, int) {};
    callbacks->save_yourself_request.callback = [](SmsConn, SmPointer, int, int, int, int, int) {};
    callbacks->save_yourself_phase2_request.callback = [](SmsConn connection, SmPointer) {
        SmsSaveYourselfPhase2(connection);
    };
    callbacks->close_connection.callback = [](SmsConn, SmPointer, int, char**) { std::exit(EXIT_SUCCESS); };
    callbacks->delete_properties.callback = [](SmsConn, SmPointer, int, char**) {};
    callbacks->get_properties.callback = [](SmsConn, SmPointer) {};
    *answered = (SmsGetPropertiesProcMask << 1) - 1;
    return 1;
}

int everyone(char*)
{
    return 1; // 1: this client may connect
}

// Waits until one of the files can be read, and returns that file.
int readable(const std::vector<int>& files)
{
    std::vector<pollfd> waiting;
    for (const int file : files)
        waiting.push_back({file, POLLIN, 0});
    while (poll(waiting.data(), waiting.size(), -1) <= 0)
        ;
    for (const pollfd& file : waiting)
        if (file.revents)
            return file.fd;
    return -1;
}

} // namespace

int main()
{
    char error[256] = "";
    int count = 0;
    IceListenObj* addresses = nullptr;
    if (!SmsInitialize("plotvue", "1", welcome, nullptr, everyone, sizeof error, error) ||
        !IceListenForConnections(&count, &addresses, sizeof error, error)) {
        std::cerr << error << '\n';
        return EXIT_FAILURE;
    }
    std::vector<int> files = {STDIN_FILENO};
    for (int i = 0; i < count; ++i) {
        IceSetHostBasedAuthProc(addresses[i], everyone);
        files.push_back(IceGetListenConnectionNumber(addresses[i]));
    }
    std::cout << IceComposeNetworkIdList(count, addresses) << std::endl;

    const std::map<std::string, int> saves = {
        {"local", SmSaveLocal}, {"global", SmSaveGlobal}, {"both", SmSaveBoth}};
    std::map<int, IceConn> connections;
    while (true) {
        const int file = readable(files);
        if (file == STDIN_FILENO) {
            std::string save;
            if (!std::getline(std::cin, save) || !saves.contains(save) || !program)
                return EXIT_FAILURE;
            SmsSaveYourself(program, saves.at(save), 1, SmInteractStyleAny, 0);
        } else if (connections.contains(file)) {
            if (IceProcessMessages(connections[file], nullptr, nullptr) != IceProcessMessagesSuccess)
                return EXIT_SUCCESS; // the program has ended
        } else {
            IceAcceptStatus status{};
            for (int i = 0; i < count; ++i)
                if (IceGetListenConnectionNumber(addresses[i]) == file)
                    if (IceConn connection = IceAcceptConnection(addresses[i], &status)) {
                        files.push_back(IceConnectionNumber(connection));
                        connections[IceConnectionNumber(connection)] = connection;
                    }
        }
    }
}
