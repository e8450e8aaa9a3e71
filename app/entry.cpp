#include "app/entry.h"

#include "app/application.h"
#include "app/commandline.h"
#include "app/display.h"
#include "app/lastresort.h"
#include "app/notice.h"
#include "app/pluginfolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVariant>

// Outside of any namespace, as the toolkit's macros need it.
static void registerResources()
{
    Q_INIT_RESOURCE(orvanta);
}

static void unregisterResources()
{
    Q_CLEANUP_RESOURCE(orvanta);
}

namespace {

// The toolkit is not to look at any argument: "-style" and the like are plain text here. It holds on to both of these
// for as long as the application object lives.
int argumentCount = 0;
char emptyArgument[] = "";
char *arguments[] = {emptyArgument, nullptr};

// The toolkit's remarks on the environment (a missing XDG_RUNTIME_DIR, say) would turn up in the mail of every cron
// job.
class WithoutRemarks final
{
public:
    WithoutRemarks() { s_handler = qInstallMessageHandler(&WithoutRemarks::handle); }
    ~WithoutRemarks() { qInstallMessageHandler(s_handler); }
    Q_DISABLE_COPY(WithoutRemarks)

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtDebugMsg || type == QtFatalMsg)
            s_handler(type, context, message);
    }

    inline static QtMessageHandler s_handler = nullptr;
};

qint32 verifyForScript(const QString &commandLine)
{
    const WithoutRemarks withoutRemarks;
    Application application(argumentCount, arguments);
    return runCommandLine(commandLine);
}

int openWindow(const QString &file)
{
    prepareForDenseScreens();
    Application application(argumentCount, arguments);
    if (!file.isEmpty())
        application.setProperty("AUTO_ADD", file);
    application.init();
    const int code = QApplication::exec();
    unregisterResources();
    return code;
}

// The path with nothing but its relativity taken away: the run changes its working directory before it opens the file.
QString anchored(const QString &path)
{
    return QFileInfo(path).isAbsolute() ? path : QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

int run(const QString &commandLine)
{
    // Nothing here is drawn with OpenGL. Otherwise the toolkit would load it for the first window, which can take a
    // fifth of the whole start.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    // Regular expressions are few and short here. Turned into machine code, they would need memory that can be both
    // written and run.
    qputenv("QT_ENABLE_REGEXP_JIT", "0");
    loadNoPluginsFromProgramFolder();

    // A folder exists too, so its path opens the window; that is meant.
    const bool isFile = !commandLine.isNull() && QFile::exists(commandLine);
    const bool isWindowRun = isFile || commandLine.isEmpty();

    if (!displayIsAvailable()) {
        if (isWindowRun) {
            writeToStandardError(QStringLiteral("orv: no display to open a window on. "
                                                "To verify a file without one: orv /a ALGORITHM /c CHECKSUM /f FILE"));
            return -1;
        }
        doWithoutDisplay();
    }
    if (!isWindowRun)
        return verifyForScript(commandLine);
    return openWindow(isFile ? anchored(commandLine) : QString());
}

} // namespace

int runProgram(const QString &commandLine)
{
    // By the time a handler runs, unwinding has ended the application object and saved the settings.
    try {
        // They are registered when the program is loaded, too; once more does no harm.
        registerResources();
        return run(commandLine);
    } catch (const char *text) {
        return reportKnownError(text);
    } catch (...) {
        return reportUnknownError();
    }
}
