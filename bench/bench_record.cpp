#include "bench/pairs.h"
#include "checksum/filechecksum.h"
#include "checksum/md5blocks.h"
#include "checksum/sha1blocks.h"
#include "checksum/sha1instructions.h"
#include "md5forms.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <openssl/evp.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace {

constexpr std::size_t bufferSize = 256 * 1024;
constexpr qint64 largeFileSize = 1024 * 1024 * 1024;
constexpr int digestPairs = 300;
constexpr int filePairs = 9;
constexpr int processPairs = 60;

enum class Goal
{
    AtLeast,
    AtMost
};

void printRow(const std::string &what, Goal goal, double limit, const char *unit, double figure,
              const std::string &remark)
{
    const bool reached = goal == Goal::AtLeast ? figure >= limit : figure <= limit;
    std::printf("| %-62s | %s %.2f%s | %.3f%s | %-11s | %s |\n", what.c_str(),
                goal == Goal::AtLeast ? ">=" : "<=", limit, unit, figure, unit, reached ? "reached" : "NOT REACHED",
                remark.c_str());
    std::fflush(stdout);
}

void printUnmeasured(const std::string &what, const char *why)
{
    std::printf("| %-62s | | | not measured | %s |\n", what.c_str(), why);
}

const std::vector<std::uint8_t> &buffer()
{
    static const std::vector<std::uint8_t> bytes = [] {
        std::vector<std::uint8_t> content(bufferSize);
        QRandomGenerator random(1);
        for (std::uint8_t &byte : content)
            byte = static_cast<std::uint8_t>(random.generate());
        return content;
    }();
    return bytes;
}

// The time of one of the processor's cycles, as it runs at this moment: that of an addition which waits for the one
// before it.
double cycle()
{
    constexpr int additions = 10'000'000;
    std::uint64_t sum = 1;
    const std::uint64_t number = buffer().at(0) | 1u;
    const Pairs pairs = measurePairs(
        5,
        [&] {
            for (int i = 0; i < additions; ++i) {
                sum += number;
                asm("" : "+r"(sum)); // every one of them is done
            }
        },
        [] {});
    return pairs.first / additions;
}

std::string cyclesPerByte(const Pairs &pairs)
{
    char text[96];
    const double oneCycleAByte = static_cast<double>(bufferSize) * cycle();
    std::snprintf(text, sizeof text, "%.2f cycles a byte, OpenSSL %.2f", pairs.first / oneCycleAByte,
                  pairs.second / oneCycleAByte);
    return text;
}

// Speed of a function that compresses blocks, as a multiple of OpenSSL's on the same bytes.
template<std::size_t words, typename Blocks>
void compareWithOpenSsl(const std::string &what, double goal, const EVP_MD *other, Blocks blocks)
{
    EVP_MD_CTX *context = EVP_MD_CTX_new();
    std::uint32_t state[words] = {};
    const Pairs pairs = measurePairs(
        digestPairs, [&] { blocks(state, buffer().data(), bufferSize / 64); },
        [&] {
            EVP_DigestInit_ex(context, other, nullptr);
            EVP_DigestUpdate(context, buffer().data(), bufferSize);
        });
    EVP_MD_CTX_free(context);
    printRow(what, Goal::AtLeast, goal, "", median(pairs.ratios), cyclesPerByte(pairs));
}

void runProgram(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        throw std::runtime_error("does not run: " + program.toStdString());
}

void compareFile(const char *name, ChecksumAlgorithm algorithm, const QString &file, double goal)
{
    const Pairs pairs = measurePairs(
        filePairs,
        [&] {
            runProgram(QStringLiteral("openssl"),
                       {QStringLiteral("dgst"), QLatin1Char('-') + QString::fromLatin1(name), file});
        },
        [&] { fileChecksum(algorithm, file); });
    char remark[96];
    std::snprintf(remark, sizeof remark, "%.2f s, openssl %.2f s", pairs.second, pairs.first);
    printRow(std::string("fileChecksum on 1 GiB in memory, ") + name + ", time to openssl dgst's", Goal::AtMost, goal,
             "", median(pairs.ratios), remark);
}

QStringList verification(const QString &file)
{
    return {QStringLiteral("/a"), QStringLiteral("md5"), QStringLiteral("/c"),
            QStringLiteral("0"),  QStringLiteral("/f"),  QFileInfo(file).fileName()};
}

void compareWholeRun(const QString &program, const QString &bare, const QString &file)
{
    const Pairs pairs = measurePairs(
        processPairs, [&] { runProgram(bare, {}); }, [&] { runProgram(program, verification(file)); });
    char remark[96];
    std::snprintf(remark, sizeof remark, "%.1f ms, bare %.1f ms", pairs.second * 1e3, pairs.first * 1e3);
    printRow("a verification of one byte, time to a bare QApplication's", Goal::AtMost, 1.05, "", median(pairs.ratios),
             remark);
}

// The most memory that a run has in use at any time, in KiB.
double peakMemory(const QString &program, const QString &file)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const QByteArray name = QFile::encodeName(QFileInfo(file).fileName());
        const QByteArray path = QFile::encodeName(program);
        ::execl(path.constData(), path.constData(), "/a", "md5", "/c", "0", "/f", name.constData(), nullptr);
        ::_exit(127);
    }
    int status = 0;
    rusage usage = {};
    if (::wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 1)
        throw std::runtime_error("a verification did not say \"invalid\"");
    return static_cast<double>(usage.ru_maxrss);
}

void compareMemory(const QString &program, const QString &large, const QString &small)
{
    std::vector<double> differences;
    for (int i = 0; i < filePairs; ++i)
        differences.push_back(peakMemory(program, large) - peakMemory(program, small));
    printRow("peak memory of a 1 GiB check beyond that of a 1 KiB check", Goal::AtMost, 64, " KiB", median(differences),
             "");
}

QString writeFile(const QTemporaryDir &folder, const QString &name, qint64 size)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("cannot write a file");
    const auto *bytes = reinterpret_cast<const char *>(buffer().data());
    for (qint64 written = 0; written < size; written += bufferSize)
        file.write(bytes, qMin(size - written, static_cast<qint64>(bufferSize)));
    return file.fileName();
}

void measureEverything(const QString &program, const QString &bare)
{
    for (const Md5Form &form : md5Forms) {
        const std::string what = std::string("MD5, speed to OpenSSL's: ") + form.compiler;
        if (form.function == nullptr)
            printUnmeasured(what, "that compiler is not there");
        else
            compareWithOpenSsl<4>(what, form.function == &md5Blocks ? 1.05 : 1.04, EVP_md5(), form.function);
    }
    const char *sha1 = "SHA-1 by the processor's instructions, speed to OpenSSL's";
    if (hasSha1Instructions())
        compareWithOpenSsl<5>(sha1, 0.99, EVP_sha1(), sha1BlocksByInstructions);
    else
        printUnmeasured(sha1, "this processor has none");

    const QTemporaryDir folder;
    const QString large = writeFile(folder, QStringLiteral("large"), largeFileSize);
    const QString small = writeFile(folder, QStringLiteral("small"), 1024);
    const QString oneByte = writeFile(folder, QStringLiteral("byte"), 1);
    compareFile("md5", md5Algorithm, large, 0.95);
    compareFile("sha1", sha1Algorithm, large, 0.97);
    QDir::setCurrent(folder.path()); // a verification takes a bare name, and leaves its settings here
    compareWholeRun(program, bare, oneByte);
    compareMemory(program, large, small);
}

} // namespace

/// Measures what Orvanta is fast at against what others need for it, as ratios within one run, and prints a table of
/// goals and figures. bench_record ORV BAREAPPLICATION, or "bench_record masked" for the one row that needs OpenSSL
/// without the processor's SHA instructions (OPENSSL_ia32cap=:~0x20000000).
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (arguments.value(1) == QLatin1String("masked"))
            compareWithOpenSsl<5>("SHA-1 portable, speed to OpenSSL's without SHA instructions", 0.84, EVP_sha1(),
                                  sha1BlocksPortable);
        else if (arguments.size() == 3)
            measureEverything(QFileInfo(arguments.at(1)).absoluteFilePath(),
                              QFileInfo(arguments.at(2)).absoluteFilePath());
        else
            return 2;
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "bench_record: %s\n", error.what());
        return 1;
    }
}
