#include <QApplication>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMessageBox>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QNetworkProxy>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace {

QJsonValue propertyValue(const QMetaProperty &property, const QObject *object)
{
    const QVariant value = property.read(object);
    if (property.isFlagType())
        return QString::fromLatin1(property.enumerator().valueToKeys(value.toInt()));
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    return value.canConvert<QString>() ? QJsonValue(value.toString()) : QJsonValue();
}

QJsonObject describe(const QWidget *widget)
{
    QJsonObject description;
    description.insert(QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className()));

    QJsonObject properties;
    for (int i = 0; i < widget->metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = widget->metaObject()->property(i);
        const QJsonValue value = propertyValue(property, widget);
        if (!value.isNull())
            properties.insert(QString::fromLatin1(property.name()), value);
    }
    if (const auto bar = qobject_cast<const QStatusBar *>(widget))
        properties.insert(QStringLiteral("message"), bar->currentMessage());
    description.insert(QStringLiteral("properties"), properties);

    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    description.insert(QStringLiteral("x"), corner.x());
    description.insert(QStringLiteral("y"), corner.y());
    description.insert(QStringLiteral("width"), widget->width());
    description.insert(QStringLiteral("height"), widget->height());

    if (widget->isWindow())
        description.insert(QStringLiteral("exposed"), widget->windowHandle() && widget->windowHandle()->isExposed());

    if (const auto box = qobject_cast<const QMessageBox *>(widget)) {
        QJsonArray buttons;
        const auto all = box->buttons();
        for (const QAbstractButton *button : all)
            buttons.append(button->text());
        description.insert(QStringLiteral("buttons"), buttons);
        if (box->defaultButton())
            description.insert(QStringLiteral("defaultButton"), box->defaultButton()->text());
    }

    QJsonArray children;
    const auto all = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : all) {
        if (!child->isWindow())
            children.append(describe(child));
    }
    description.insert(QStringLiteral("children"), children);
    return description;
}

QByteArray describeVisibleWindows()
{
    QJsonArray windows;
    const auto all = QApplication::topLevelWidgets();
    for (const QWidget *widget : all) {
        if (widget->isVisible())
            windows.append(describe(widget));
    }
    return QJsonDocument(windows).toJson(QJsonDocument::Compact);
}

/// Answers every connection with the state of all visible windows, as JSON, and hangs up.
class Inspector final : public QObject
{
public:
    explicit Inspector(const QString &socketName)
    {
        connect(&m_server, &QLocalServer::newConnection, this, &Inspector::answer);
        QLocalServer::removeServer(socketName);
        m_server.listen(socketName);
    }

private:
    void answer()
    {
        QLocalSocket *socket = m_server.nextPendingConnection();
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        socket->write(describeVisibleWindows());
        socket->disconnectFromServer();
    }

    QLocalServer m_server;
};

// Lets an exception out of an event handler, once per process, if the test asks for one.
void throwIfAsked()
{
    const QByteArray kind = qgetenv("ORVANTA_INSPECTOR_THROWS");
    qunsetenv("ORVANTA_INSPECTOR_THROWS");
    if (kind == "character string")
        throw "thrown by a test";
    if (kind == "text")
        throw QStringLiteral("thrown by a test");
}

// Sends the program's requests to a server of the test, whatever host they are for.
void useProxyIfAsked()
{
    const int port = qEnvironmentVariableIntValue("ORVANTA_INSPECTOR_PROXY");
    if (port > 0)
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), static_cast<quint16>(port)));
}

} // namespace

class InspectorPlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "inspector.json")

public:
    QObject *create(const QString &, const QString &) override
    {
        QTimer::singleShot(0, qApp, throwIfAsked);
        useProxyIfAsked();
        return new Inspector(qEnvironmentVariable("ORVANTA_INSPECTOR")); // the toolkit owns it
    }
};

#include "inspector.moc"
