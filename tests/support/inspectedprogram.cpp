#include "tests/support/inspectedprogram.h"

#include "tests/support/otherprograms.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QTest>

#include <utility>

InspectedWidget::InspectedWidget(QJsonObject description)
    : m_description(std::move(description))
{
}

QString InspectedWidget::className() const
{
    return m_description.value(QLatin1String("class")).toString();
}

QString InspectedWidget::property(const char *name) const
{
    return m_description.value(QLatin1String("properties")).toObject().value(QLatin1String(name)).toString();
}

bool InspectedWidget::isExposed() const
{
    return m_description.value(QLatin1String("exposed")).toBool();
}

QRect InspectedWidget::geometry() const
{
    return {m_description.value(QLatin1String("x")).toInt(), m_description.value(QLatin1String("y")).toInt(),
            m_description.value(QLatin1String("width")).toInt(), m_description.value(QLatin1String("height")).toInt()};
}

QStringList InspectedWidget::buttons() const
{
    return m_description.value(QLatin1String("buttons")).toVariant().toStringList();
}

QString InspectedWidget::defaultButton() const
{
    return m_description.value(QLatin1String("defaultButton")).toString();
}

InspectedWidget InspectedWidget::find(const QString &objectName) const
{
    const QJsonArray children = m_description.value(QLatin1String("children")).toArray();
    for (const QJsonValue &child : children) {
        const InspectedWidget widget(child.toObject());
        if (widget.objectName() == objectName)
            return widget;
        const InspectedWidget below = widget.find(objectName);
        if (!below.isNull())
            return below;
    }
    return {};
}

InspectedProgram::InspectedProgram(const QString &executable)
    : m_executable(executable)
    , m_environment(QProcessEnvironment::systemEnvironment())
{
    setVariable(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(ORVANTA_TEST_PLUGINS));
    setVariable(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("inspector"));
    setVariable(QStringLiteral("ORVANTA_INSPECTOR"), m_socketFolder.filePath(QStringLiteral("socket")));
    setVariable(QStringLiteral("QT_LOGGING_TO_CONSOLE"), QStringLiteral("1"));
}

InspectedProgram::~InspectedProgram()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void InspectedProgram::setVariable(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void InspectedProgram::removeVariable(const QString &name)
{
    m_environment.remove(name);
}

void InspectedProgram::searchForNoLeaks()
{
    setVariable(QStringLiteral("ASAN_OPTIONS"),
                qEnvironmentVariable("ASAN_OPTIONS") + QLatin1String(":detect_leaks=0"));
}

void InspectedProgram::start(const QStringList &arguments)
{
    m_process.setProcessEnvironment(m_environment);
    const QStringList asIs = QStringList{m_executable} + arguments;
    const QStringList command = m_bound ? boundByPermissions(asIs) : asIs;
    m_process.start(command.at(0), command.mid(1));
    QVERIFY2(m_process.waitForStarted(), "the program does not start");
}

int InspectedProgram::exitCode()
{
    constexpr int none = -1000;
    if (isRunning() && !m_process.waitForFinished(60000))
        return none;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : none;
}

QByteArray InspectedProgram::standardError()
{
    return m_process.readAllStandardError();
}

QList<InspectedWidget> InspectedProgram::windows() const
{
    QLocalSocket socket;
    socket.connectToServer(m_environment.value(QStringLiteral("ORVANTA_INSPECTOR")));
    if (!socket.waitForConnected(1000))
        return {};
    QByteArray answer;
    QElapsedTimer elapsed;
    elapsed.start();
    while (socket.state() == QLocalSocket::ConnectedState && elapsed.elapsed() < 5000) {
        socket.waitForReadyRead(200);
        answer += socket.readAll();
    }
    answer += socket.readAll();

    QList<InspectedWidget> widgets;
    const QJsonArray descriptions = QJsonDocument::fromJson(answer).array();
    for (const QJsonValue &description : descriptions)
        widgets.append(InspectedWidget(description.toObject()));
    return widgets;
}

template<typename Choose>
InspectedWidget InspectedProgram::waitFor(const QString &title, Choose choose)
{
    // The window manager may still be placing the window, so its place must be the same twice in a row.
    QRect lastGeometry;
    const QDeadlineTimer deadline(30000);
    while (!deadline.hasExpired() && m_process.state() != QProcess::NotRunning) {
        const auto all = windows();
        for (const InspectedWidget &window : all) {
            if (window.property("windowTitle") != title || !window.isExposed())
                continue;
            const InspectedWidget chosen = choose(window);
            if (chosen.isNull())
                continue;
            if (chosen.geometry() == lastGeometry)
                return chosen;
            lastGeometry = chosen.geometry();
        }
        m_process.waitForFinished(50);
    }
    return {};
}

InspectedWidget InspectedProgram::waitForWindow(const QString &title)
{
    return waitFor(title, [](const InspectedWidget &window) {
        return window.property("isActiveWindow") == QLatin1String("true") ? window : InspectedWidget();
    });
}

InspectedWidget InspectedProgram::waitForText(const QString &title, const QString &objectName, const char *property,
                                              const QString &text)
{
    return waitFor(title, [&](const InspectedWidget &window) {
        const InspectedWidget widget = window.objectName() == objectName ? window : window.find(objectName);
        return !widget.isNull() && widget.property(property) == text ? widget : InspectedWidget();
    });
}

namespace {

void runXdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

QStringList moveTo(const QPoint &position)
{
    return {QStringLiteral("mousemove"), QString::number(position.x()), QString::number(position.y())};
}

} // namespace

void pressKey(const QString &key)
{
    runXdotool({QStringLiteral("key"), key});
}

void typeText(const QString &text)
{
    runXdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("5"), text});
}

QStringList windowsCalled(const QString &title)
{
    QProcess search;
    search.start(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                             QStringLiteral("--name"), QLatin1Char('^') + title + QLatin1Char('$')});
    if (!search.waitForFinished())
        QTest::qFail("xdotool does not end", __FILE__, __LINE__);
    return QString::fromLatin1(search.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void closeWindows(const QString &title)
{
    const QStringList windows = windowsCalled(title);
    QVERIFY(!windows.isEmpty());
    for (const QString &window : windows)
        QCOMPARE(QProcess::execute(QStringLiteral("wmctrl"), {QStringLiteral("-i"), QStringLiteral("-c"), window}), 0);
}

void click(const InspectedWidget &widget)
{
    runXdotool(moveTo(widget.geometry().center()) + QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

void parkMouse()
{
    runXdotool({QStringLiteral("mousemove"), QStringLiteral("0"), QStringLiteral("0")});
}

void dragMouse(const QRect &from, const QRect &to)
{
    constexpr int steps = 20;
    runXdotool(moveTo(from.center()) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1")});
    for (int step = 1; step <= steps; ++step) {
        runXdotool(moveTo(from.center() + (to.center() - from.center()) * step / steps));
        QTest::qSleep(20);
    }
    // A few small moves on the spot, as of a hand: the protocol answers each with the target's consent.
    for (const int offset : {1, 0, 1}) {
        runXdotool(moveTo(to.center() + QPoint(offset, 0)));
        QTest::qSleep(100);
    }
    runXdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}
