// The smallest program of the toolkit: what any start costs.
#include <QApplication>
#include <QPushButton>

int main(int argc, char* argv[])
{
    QApplication desktop(argc, argv);
    QPushButton button("Exit");
    button.resize(900, 560);
    button.show();
    return QApplication::exec();
}
