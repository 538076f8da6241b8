// The smallest program of the toolkit, a button in a window of the size of a chart window. Shows the minimum
// time of any start.
#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char* argv[])
{
    QApplication desktop(argc, argv);
    QWidget window;
    QVBoxLayout layout(&window);
    QPushButton button("Exit");
    layout.addWidget(&button);
    window.resize(1000, 600);
    window.show();
    return QApplication::exec();
}
