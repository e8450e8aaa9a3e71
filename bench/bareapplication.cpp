#include <QApplication>

/// The least that a program with an application object can be; what a run of Orvanta for a script is compared with.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return 0;
}
