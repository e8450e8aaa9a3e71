#include <QApplication>
#include <QMainWindow>
#include <QStyleFactory>

/// The least that a program with a window in Orvanta's style can be; what its start is compared with.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QString plastique = QStringLiteral("plastique");
    QApplication::setStyle(QStyleFactory::keys().contains(plastique, Qt::CaseInsensitive) ? plastique
                                                                                          : QStringLiteral("fusion"));
    QMainWindow window;
    window.resize(600, 342);
    window.show();
    return QApplication::exec();
}
