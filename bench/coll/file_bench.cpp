// Blocks and lines of files, beside QFile and QTextStream.
#include <VxMFCEmu/coll.h>
#include <VxMFCEmu/text/vxqstring.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int kBlockSize = 4096;
constexpr int kBlocks = 1024;
constexpr int kLines = 20'000;

class File
{
public:
    File() : m_name(m_dir.filePath(QStringLiteral("f"))) {}

    const QString& Name() const { return m_name; }
    CString_E WideName() const { return m_name; }
    void Fill(const QByteArray& bytes) const
    {
        QFile file(m_name);
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }

private:
    QTemporaryDir m_dir;
    QString m_name;
};

void checkBlocks(benchmark::State& state, qint64 nBytes)
{
    if (nBytes != qint64{kBlocks} * kBlockSize)
        state.SkipWithError("not all bytes");
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kBlocks);
}

void ReadBlocks(benchmark::State& state)
{
    const File name;
    name.Fill(QByteArray(kBlocks * kBlockSize, 'x'));
    CFile_E file(name.WideName(), CFile_E::modeRead);
    std::vector<char> block(kBlockSize);
    qint64 nBytes = 0;
    for (auto _ : state) {
        file.SeekToBegin();
        nBytes = 0;
        for (int i = 0; i < kBlocks; ++i)
            nBytes += file.Read(block.data(), kBlockSize);
    }
    checkBlocks(state, nBytes);
}
BENCHMARK(ReadBlocks);

void ReadBlocks_raw(benchmark::State& state)
{
    const File name;
    name.Fill(QByteArray(kBlocks * kBlockSize, 'x'));
    QFile file(name.Name());
    file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    std::vector<char> block(kBlockSize);
    qint64 nBytes = 0;
    for (auto _ : state) {
        file.seek(0);
        nBytes = 0;
        for (int i = 0; i < kBlocks; ++i)
            nBytes += file.read(block.data(), kBlockSize);
    }
    checkBlocks(state, nBytes);
}
BENCHMARK(ReadBlocks_raw);

void WriteBlocks(benchmark::State& state)
{
    const File name;
    CFile_E file(name.WideName(), CFile_E::modeWrite | CFile_E::modeCreate);
    const std::vector<char> block(kBlockSize, 'x');
    for (auto _ : state) {
        file.SeekToBegin();
        for (int i = 0; i < kBlocks; ++i)
            file.Write(block.data(), kBlockSize);
    }
    checkBlocks(state, static_cast<qint64>(file.GetLength()));
}
BENCHMARK(WriteBlocks);

void WriteBlocks_raw(benchmark::State& state)
{
    const File name;
    QFile file(name.Name());
    file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const std::vector<char> block(kBlockSize, 'x');
    for (auto _ : state) {
        file.seek(0);
        for (int i = 0; i < kBlocks; ++i)
            file.write(block.data(), kBlockSize);
    }
    checkBlocks(state, file.size());
}
BENCHMARK(WriteBlocks_raw);

const char kLine[] = "  10\r\n  1234.5678  LINE  some text of a drawing\r\n";

QByteArray manyLines() { return QByteArray(kLine).repeated(kLines / 2); }

void checkLines(benchmark::State& state, int nLines, qint64 nCharacters)
{
    if (nLines != kLines || nCharacters != qint64{kLines} / 2 * qint64{sizeof kLine - 1 - 4})
        state.SkipWithError("not all lines");
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kLines);
}

void ReadLines(benchmark::State& state)
{
    const File name;
    name.Fill(manyLines());
    CStdioFile_E file(name.WideName(), CFile_E::modeRead);
    CString_E line;
    int nLines = 0;
    qint64 nCharacters = 0;
    for (auto _ : state) {
        file.SeekToBegin();
        for (nLines = 0, nCharacters = 0; file.ReadString(line); ++nLines)
            nCharacters += line.GetLength();
    }
    checkLines(state, nLines, nCharacters);
}
BENCHMARK(ReadLines);

void ReadLines_raw(benchmark::State& state)
{
    const File name;
    name.Fill(manyLines());
    QFile file(name.Name());
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QString line;
    int nLines = 0;
    qint64 nCharacters = 0;
    for (auto _ : state) {
        file.seek(0);
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        for (nLines = 0, nCharacters = 0; stream.readLineInto(&line); ++nLines)
            nCharacters += line.size();
    }
    checkLines(state, nLines, nCharacters);
}
BENCHMARK(ReadLines_raw);

void checkWritten(benchmark::State& state, qint64 nBytes)
{
    if (nBytes != manyLines().size())
        state.SkipWithError("not all lines");
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kLines);
}

void WriteLines(benchmark::State& state)
{
    const File name;
    CStdioFile_E file(name.WideName(), CFile_E::modeWrite | CFile_E::modeCreate);
    for (auto _ : state) {
        file.SeekToBegin();
        for (int i = 0; i < kLines / 2; ++i)
            file.WriteString(L"  10\n  1234.5678  LINE  some text of a drawing\n");
        file.Flush();
    }
    checkWritten(state, static_cast<qint64>(file.GetLength()));
}
BENCHMARK(WriteLines);

void WriteLines_raw(benchmark::State& state)
{
    const File name;
    QFile file(name.Name());
    file.open(QIODevice::WriteOnly);
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    const QString text = QStringLiteral("  10\r\n  1234.5678  LINE  some text of a drawing\r\n");
    for (auto _ : state) {
        stream.seek(0);
        for (int i = 0; i < kLines / 2; ++i)
            stream << text;
        stream.flush();
    }
    checkWritten(state, file.size());
}
BENCHMARK(WriteLines_raw);

} // namespace
