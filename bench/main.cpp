// bench ROUNDS: times PlotVue's own work on the display at hand. The lines that it prints are for bench/run.
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
