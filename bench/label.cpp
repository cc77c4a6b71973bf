// kavbench_label: the least that a Qt program with a window is.
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("Recent Calls"));
    label.show();
    return QApplication::exec();
}
