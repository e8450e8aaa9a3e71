#include "checksum/filechecksum.h"
#include "checksum/md5digest.h"
#include "checksum/sha1.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr qint64 fileSize = 256 * 1024 * 1024;

// One file for the whole run, read once before it is timed, so that every program finds it in memory.
const QString &benchmarkFile()
{
    static const QTemporaryDir folder;
    static const QString name = [] {
        QFile file(folder.filePath(QStringLiteral("content")));
        if (!file.open(QIODevice::WriteOnly))
            std::abort();
        QByteArray piece(1024 * 1024, '\0');
        for (qint64 written = 0; written < fileSize; written += piece.size()) {
            for (int i = 0; i < piece.size(); ++i)
                piece[i] = static_cast<char>(std::rand());
            file.write(piece);
        }
        return file.fileName();
    }();
    return name;
}

void transformMd5(benchmark::State &state)
{
    const std::vector<std::uint8_t> block(64, 0x5a);
    Md5Digest digest;
    for ([[maybe_unused]] auto _ : state) {
        digest.transform(block.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * 64);
}

void transformSha1(benchmark::State &state)
{
    const std::vector<std::uint8_t> block(64, 0x5a);
    Sha1Context context;
    sha1Starts(&context);
    for ([[maybe_unused]] auto _ : state) {
        sha1Process(&context, block.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * 64);
}

void ownChecksum(benchmark::State &state, ChecksumAlgorithm algorithm)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(fileChecksum(algorithm, benchmarkFile()));
    state.SetBytesProcessed(state.iterations() * fileSize);
}

void otherProgram(benchmark::State &state, const char *command)
{
    const std::string line = std::string(command) + " '" + benchmarkFile().toStdString() + "' > /dev/null";
    for ([[maybe_unused]] auto _ : state) {
        if (std::system(line.c_str()) != 0)
            state.SkipWithError("the other program failed");
    }
    state.SetBytesProcessed(state.iterations() * fileSize);
}

/// Prints, after the times, how many times as long each other program took as ours.
class RatioReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void Finalize() override
    {
        for (const std::string algorithm : {"md5", "sha1"}) {
            const double own = m_medians["file/" + algorithm + "/orvanta"];
            for (const std::string other : {"openssl", "coreutils"}) {
                const double time = m_medians["file/" + algorithm + "/" + other];
                if (own > 0 && time > 0)
                    GetOutputStream() << algorithm << ": " << other << " / orvanta = " << time / own << '\n';
            }
        }
    }

private:
    std::map<std::string, double> m_medians;
};

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark("transform/md5", transformMd5);
    benchmark::RegisterBenchmark("transform/sha1", transformSha1);
    const auto file = [](const char *name, auto function, auto argument) {
        benchmark::RegisterBenchmark(name, function, argument)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Repetitions(5)
            ->ReportAggregatesOnly();
    };
    file("file/md5/orvanta", ownChecksum, md5Algorithm);
    file("file/md5/openssl", otherProgram, "openssl dgst -md5");
    file("file/md5/coreutils", otherProgram, "md5sum");
    file("file/sha1/orvanta", ownChecksum, sha1Algorithm);
    file("file/sha1/openssl", otherProgram, "openssl dgst -sha1");
    file("file/sha1/coreutils", otherProgram, "sha1sum");

    benchmarkFile(); // not on the first one's time
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
