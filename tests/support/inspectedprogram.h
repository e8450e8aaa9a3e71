#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>

/// A widget of a running program, as the inspector saw it at one moment.
class InspectedWidget
{
public:
    InspectedWidget() = default;
    explicit InspectedWidget(QJsonObject description);

    bool isNull() const { return m_description.isEmpty(); }
    QString className() const;
    QString objectName() const { return property("objectName"); }
    /// Any property of the widget as text; enumerators by their names. A status bar has one more, "message".
    QString property(const char *name) const;
    /// Whether the window has been shown by the display; only windows have this.
    bool isExposed() const;
    /// Where the widget is on the screen.
    QRect geometry() const;
    /// The texts of a message box's buttons, and of its default button.
    QStringList buttons() const;
    QString defaultButton() const;
    /// The first widget of that object name below this one, or a null one.
    InspectedWidget find(const QString &objectName) const;

private:
    QJsonObject m_description;
};

/// The program as a process whose windows can be looked at. It is killed, should it still run, when the object goes.
class InspectedProgram
{
public:
    explicit InspectedProgram(const QString &executable);
    ~InspectedProgram();

    void setWorkingDirectory(const QString &folder) { m_process.setWorkingDirectory(folder); }
    void setVariable(const QString &name, const QString &value);
    void removeVariable(const QString &name);
    /// Does without the search for leaks that a build with sanitizers ends in: it finds those of a preloaded library.
    void searchForNoLeaks();
    /// Binds the program by the permissions of files also when the test runs as root.
    void bindByPermissions() { m_bound = true; }

    void start(const QStringList &arguments);
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// Its exit code once it has ended by itself, or -1000 when it crashed or has not ended after a minute.
    int exitCode();
    QByteArray standardError();

    /// All windows visible at this moment; none when the program does not answer.
    QList<InspectedWidget> windows() const;
    /// The first window of that title once it is exposed and has the keyboard, or a null one when the program ends or
    /// 30 seconds pass.
    InspectedWidget waitForWindow(const QString &title);
    /// The first widget of that object name, in any exposed window of that title, once its property has that text, or a
    /// null one when the program ends or 30 seconds pass.
    InspectedWidget waitForText(const QString &title, const QString &objectName, const char *property,
                                const QString &text);

    QProcess &process() { return m_process; }

private:
    template<typename Choose>
    InspectedWidget waitFor(const QString &title, Choose choose);

    QTemporaryDir m_socketFolder;
    QString m_executable;
    QProcessEnvironment m_environment;
    QProcess m_process;
    bool m_bound = false;
};

/// Presses and releases a key, named as xdotool names it, for the window that has the focus.
void pressKey(const QString &key);

/// Types a text for the window that has the focus.
void typeText(const QString &text);

/// The windows of that title on the display, as it numbers them.
QStringList windowsCalled(const QString &title);

/// Asks all windows of that title to close, as their window manager does.
void closeWindows(const QString &title);

/// Clicks with the left button in the middle of a widget.
void click(const InspectedWidget &widget);

/// Puts the mouse where no window is.
void parkMouse();

/// Presses the left button in the middle of a rectangle on the screen, moves to the middle of another in small steps,
/// and releases it.
void dragMouse(const QRect &from, const QRect &to);
