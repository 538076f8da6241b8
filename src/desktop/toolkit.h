// Starts the toolkit.
#pragma once

#include <QApplication>

#include <memory>

namespace plotvue {

// Creates the application and connects it to the display. If no window can be shown, it prints a sentence to
// standard error and ends the process with status 1. A desktop session that ends with the application running
// does not start it again.
std::unique_ptr<QApplication> makeApplication(int& argc, char** argv);

} // namespace plotvue
