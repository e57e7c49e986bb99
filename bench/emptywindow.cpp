#include <QApplication>
#include <QWidget>

// The least that a program of Qt Widgets does until its window is there.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(980, 660);
    window.show();
    return QApplication::exec();
}
