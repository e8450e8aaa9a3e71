#include "tests/support/measuredrun.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryFile>
#include <QTest>

#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <unistd.h>
#include <vector>

namespace {

std::vector<char *> pointers(QList<QByteArray> &words)
{
    std::vector<char *> all;
    for (QByteArray &word : words)
        all.push_back(word.data());
    all.push_back(nullptr);
    return all;
}

} // namespace

MeasuredRun measure(const QList<QByteArray> &command, const QProcessEnvironment &environment, const QString &folder,
                    const std::function<void(int)> &meanwhile)
{
    QTemporaryFile output;
    if (!output.open())
        QTest::qFail("no file for the output", __FILE__, __LINE__);
    QList<QByteArray> words = command;
    QList<QByteArray> variables;
    const QStringList assignments = environment.toStringList();
    for (const QString &assignment : assignments)
        variables << QFile::encodeName(assignment);
    const std::vector<char *> arguments = pointers(words);
    const std::vector<char *> surroundings = pointers(variables);
    const QByteArray place = QFile::encodeName(folder);

    QElapsedTimer time;
    time.start();
    const pid_t process = ::fork();
    if (process == 0) {
        ::alarm(60); // survives what follows
        if (::chdir(place.constData()) == 0 && ::dup2(output.handle(), STDERR_FILENO) >= 0)
            ::execvpe(arguments.at(0), arguments.data(), surroundings.data());
        ::_exit(127);
    }
    if (meanwhile)
        meanwhile(process);
    int status = 0;
    rusage usage{};
    if (::wait4(process, &status, 0, &usage) != process)
        QTest::qFail("the process is lost", __FILE__, __LINE__);
    const double seconds = static_cast<double>(time.nsecsElapsed()) / 1e9;
    output.seek(0); // the process moved the place, too
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1000, seconds, usage.ru_maxrss, output.readAll()};
}
