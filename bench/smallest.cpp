// The smallest program of the toolkit, a window as large as a chart's with a button: what any start costs.
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
