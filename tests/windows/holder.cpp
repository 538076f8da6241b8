// holder FILE: keeps the file open until it is ended, as a virus scanner does: others may read and write the
// file, but not move or delete it. Prints a line when it has it open.
#include <cstdio>
#include <cstdlib>
#include <windows.h>

int main(int, char** argv)
{
    if (CreateFileA(argv[1], GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                    nullptr) == INVALID_HANDLE_VALUE)
        return EXIT_FAILURE;
    std::puts("open");
    std::fflush(stdout);
    Sleep(INFINITE);
}
