#include <QApplication>
#include <QWidget>

// The minimum work of a Qt Widgets program until its window is shown.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(980, 660);
    window.show();
    return QApplication::exec();
}
