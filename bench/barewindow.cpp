// The least that a program with a window of this toolkit does: what our own start is measured by.

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(654, 640);
    window.show();
    return QApplication::exec();
}
