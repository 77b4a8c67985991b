// Archives in memory, beside QDataStream doing the same job on the same objects.
#include <VxMFCEmu/coll.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QHash>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

constexpr int kCount = 1000000;

struct Record
{
    int number;
    double value;
    short kind;
    bool valid;
};

/// As many as an application's numbers, of either kind of stream.
template <typename Stream>
void writeRecords(Stream& stream)
{
    for (int i = 0; i < kCount; ++i)
        stream << i << i * 0.5 << static_cast<short>(i) << ((i & 1) != 0);
}

template <typename Stream>
long readRecords(Stream& stream)
{
    long sum = 0;
    Record r;
    for (int i = 0; i < kCount; ++i) {
        stream >> r.number >> r.value >> r.kind >> r.valid;
        sum += r.number + static_cast<long>(r.value) + r.kind + static_cast<long>(r.valid);
    }
    return sum;
}

/// One of a drawing's many small objects.
class CPart : public CObject_E
{
    DECLARE_SERIAL_E(CPart)

    void Serialize(CArchive_E& ar) override
    {
        if (ar.IsStoring())
            ar << m_number << m_size;
        else
            ar >> m_number >> m_size;
    }
    virtual quint16 typeId() const { return 0; }
    virtual void save(QDataStream& stream) const { stream << m_number << m_size; }
    virtual void restore(QDataStream& stream) { stream >> m_number >> m_size; }

    int m_number = 0;
    double m_size = 0;
};
IMPLEMENT_SERIAL_E(CPart, CObject_E, 1)

using Parts = std::vector<std::unique_ptr<CPart>>;

const Parts& parts()
{
    static const Parts all = [] {
        Parts made(kCount);
        for (int i = 0; i < kCount; ++i) {
            made[static_cast<std::size_t>(i)] = std::make_unique<CPart>();
            made[static_cast<std::size_t>(i)]->m_number = i;
        }
        return made;
    }();
    return all;
}

void writeParts(CArchive_E& ar)
{
    for (const auto& part : parts())
        ar << part.get();
}

long readParts(CArchive_E& ar, Parts& read)
{
    long sum = 0;
    for (int i = 0; i < kCount; ++i) {
        CPart* part = nullptr;
        ar >> part;
        sum += part->m_number;
        read.emplace_back(part);
    }
    return sum;
}

/// Numbers of objects, the type before each object's first time.
void writeParts(QDataStream& stream)
{
    QHash<const CPart*, quint32> numbers;
    for (const auto& part : parts()) {
        quint32& number = numbers[part.get()];
        if (number != 0) {
            stream << number;
            continue;
        }
        number = static_cast<quint32>(numbers.size());
        stream << quint32{0} << part->typeId();
        part->save(stream);
    }
}

long readParts(QDataStream& stream, Parts& read)
{
    static constexpr CPart* (*factories[])() = {[] { return new CPart; }};
    std::vector<CPart*> known;
    long sum = 0;
    for (int i = 0; i < kCount; ++i) {
        quint32 number = 0;
        stream >> number;
        if (number != 0) {
            sum += known.at(number - 1)->m_number;
            continue;
        }
        quint16 type = 0;
        stream >> type;
        CPart* const part = factories[type]();
        known.push_back(part);
        part->restore(stream);
        sum += part->m_number;
        read.emplace_back(part);
    }
    return sum;
}

constexpr wchar_t kText[] = L"a layer's name, \x56FE\x5C42";

void writeTexts(CArchive_E& ar)
{
    const CString_E text(kText);
    for (int i = 0; i < kCount; ++i)
        ar << text;
}

void writeTexts(QDataStream& stream)
{
    const QString text = QString::fromWCharArray(kText);
    for (int i = 0; i < kCount; ++i)
        stream << text;
}

long readTexts(CArchive_E& ar)
{
    long sum = 0;
    for (int i = 0; i < kCount; ++i) {
        CString_E text;
        ar >> text;
        sum += text.GetLength();
    }
    return sum;
}

long readTexts(QDataStream& stream)
{
    long sum = 0;
    for (int i = 0; i < kCount; ++i) {
        QString text;
        stream >> text;
        sum += text.size();
    }
    return sum;
}

template <typename Work>
void storing(benchmark::State& state, Work work)
{
    for (auto _ : state) {
        CMemFile_E file;
        CArchive_E ar(&file, CArchive_E::store);
        work(ar);
        ar.Close();
        benchmark::DoNotOptimize(file.GetLength());
    }
}

template <typename Work>
void storing_raw(benchmark::State& state, Work work)
{
    for (auto _ : state) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        work(stream);
        benchmark::DoNotOptimize(bytes.size());
    }
}

template <typename Write, typename Read>
void loading(benchmark::State& state, Write write, Read read, long expected)
{
    CMemFile_E file;
    {
        CArchive_E ar(&file, CArchive_E::store);
        write(ar);
    }
    for (auto _ : state) {
        file.SeekToBegin();
        CArchive_E ar(&file, CArchive_E::load);
        if (read(ar) != expected)
            state.SkipWithError("something else was read");
    }
}

template <typename Write, typename Read>
void loading_raw(benchmark::State& state, Write write, Read read, long expected)
{
    QByteArray bytes;
    {
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        write(stream);
    }
    for (auto _ : state) {
        QDataStream stream(bytes);
        stream.setByteOrder(QDataStream::LittleEndian);
        if (read(stream) != expected)
            state.SkipWithError("something else was read");
    }
}

/// Lets @p read have a place for its objects, and clears that outside of the measurement.
template <typename Stream>
auto intoParts(benchmark::State& state)
{
    return [&state](Stream& stream) {
        Parts read;
        read.reserve(kCount);
        const long sum = readParts(stream, read);
        state.PauseTiming();
        read.clear();
        state.ResumeTiming();
        return sum;
    };
}

const auto putRecords = [](auto& stream) { writeRecords(stream); };
const auto getRecords = [](auto& stream) { return readRecords(stream); };
const auto putParts = [](auto& stream) { writeParts(stream); };
const auto putTexts = [](auto& stream) { writeTexts(stream); };
const auto getTexts = [](auto& stream) { return readTexts(stream); };

constexpr long kNumbers = long{kCount} * (kCount - 1) / 2;
constexpr long kTexts = long{kCount} * (sizeof kText / sizeof *kText - 1);

long recordSum()
{
    long sum = 0;
    for (int i = 0; i < kCount; ++i)
        sum += i + i / 2 + static_cast<short>(i) + (i & 1);
    return sum;
}

void ArchiveWriteRecords(benchmark::State& state) { storing(state, putRecords); }
void ArchiveWriteRecords_raw(benchmark::State& state) { storing_raw(state, putRecords); }
void ArchiveReadRecords(benchmark::State& state)
{
    loading(state, putRecords, getRecords, recordSum());
}
void ArchiveReadRecords_raw(benchmark::State& state)
{
    loading_raw(state, putRecords, getRecords, recordSum());
}
void ArchiveWriteObjects(benchmark::State& state)
{
    parts();
    storing(state, putParts);
}
void ArchiveWriteObjects_raw(benchmark::State& state)
{
    parts();
    storing_raw(state, putParts);
}
void ArchiveReadObjects(benchmark::State& state)
{
    loading(state, putParts, intoParts<CArchive_E>(state), kNumbers);
}
void ArchiveReadObjects_raw(benchmark::State& state)
{
    loading_raw(state, putParts, intoParts<QDataStream>(state), kNumbers);
}
void ArchiveWriteStrings(benchmark::State& state) { storing(state, putTexts); }
void ArchiveWriteStrings_raw(benchmark::State& state) { storing_raw(state, putTexts); }
void ArchiveReadStrings(benchmark::State& state) { loading(state, putTexts, getTexts, kTexts); }
void ArchiveReadStrings_raw(benchmark::State& state)
{
    loading_raw(state, putTexts, getTexts, kTexts);
}

BENCHMARK(ArchiveWriteRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveWriteRecords_raw)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadRecords_raw)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveWriteObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveWriteObjects_raw)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadObjects_raw)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveWriteStrings)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveWriteStrings_raw)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadStrings)->Unit(benchmark::kMillisecond);
BENCHMARK(ArchiveReadStrings_raw)->Unit(benchmark::kMillisecond);

} // namespace
