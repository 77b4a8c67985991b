// The tables of texts and control names of a plug-in: files of any bytes, and files written of
// texts.
#include "inputfile.h"
#include "inputreader.h"

#include "text/vxidtable_p.h"

#include <QtCore/QSettings>

namespace {

using Table = QMap<UINT, QString>;

Table tableOf(const QString& fileName)
{
    return vx::detail::readIdTable(fileName, QStringLiteral(", "));
}

void readAnything(const QByteArray& bytes)
{
    const InputFile file(bytes);
    const Table table = tableOf(file.name());
    // An entry is a character and a line end at least.
    VXMFC_REQUIRE(table.size() <= bytes.size() / 2 + 1);
}

void readBack(InputReader input)
{
    const InputFile file({});
    Table expected;
    {
        QSettings settings(file.name(), QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        while (!input.isEmpty()) {
            const auto id = input.take<UINT>();
            const QString text = QString::fromStdString(input.takeUntil('\n'));
            expected.insert(id, text);
            settings.setValue(QString::number(id), text);
        }
    }
    VXMFC_REQUIRE(tableOf(file.name()) == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readAnything({reinterpret_cast<const char*>(data), static_cast<int>(size)});
    readBack({data, size});
    return 0;
}
