// bench ROUNDS: measures PlotVue's own work on the current display. bench/run reads its output.
#include "reading.h"
#include "windows.h"

#include <QApplication>

#include <cstdlib>

int main(int argc, char* argv[])
{
    QApplication desktop(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 1;
    plotvue::measureWindows(rounds);
    plotvue::measureReading(rounds);
}
