#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QVector>

namespace {

/// A window that files can be dragged out of, the way file managers offer them: as addresses and as plain text.
class DragSource final : public QLabel
{
public:
    DragSource(const QString &fileName, int count)
    {
        m_urls.fill(QUrl::fromLocalFile(fileName), count);
        setText(fileName);
        setWindowTitle(QStringLiteral("drag source"));
        setGeometry(20, 20, 200, 60);
    }

protected:
    void mousePressEvent(QMouseEvent *) override {}

    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *mime = new QMimeData; // the drag owns it
        mime->setUrls(m_urls.toList());
        mime->setText(m_urls.first().toString());
        auto *drag = new QDrag(this); // deletes itself
        drag->setMimeData(mime);
        drag->exec(Qt::CopyAction);
    }

private:
    QVector<QUrl> m_urls;
};

} // namespace

/// dragsource FILE [COUNT]: one file, or the same so many times.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const int count = qMax(1, QApplication::arguments().value(2).toInt());
    DragSource source(QApplication::arguments().value(1), count);
    source.show();
    return QApplication::exec();
}
