#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

/// A window that a file can be dragged out of, the way file managers offer one: as an address and as plain text.
class DragSource final : public QLabel
{
public:
    explicit DragSource(QString fileName)
        : m_fileName(std::move(fileName))
    {
        setText(m_fileName);
        setWindowTitle(QStringLiteral("drag source"));
        setGeometry(20, 20, 200, 60);
    }

protected:
    void mousePressEvent(QMouseEvent *) override {}

    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *mime = new QMimeData; // the drag owns it
        const QUrl url = QUrl::fromLocalFile(m_fileName);
        mime->setUrls({url});
        mime->setText(url.toString());
        auto *drag = new QDrag(this); // deletes itself
        drag->setMimeData(mime);
        drag->exec(Qt::CopyAction);
    }

private:
    QString m_fileName;
};

} // namespace

/// dragsource FILE
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    DragSource source(QApplication::arguments().value(1));
    source.show();
    return QApplication::exec();
}
