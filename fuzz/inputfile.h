// A file made of a fuzz input, deleted with the object.
#pragma once

#include "require.h"

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

class InputFile
{
public:
    explicit InputFile(const QByteArray& bytes)
    {
        static const QTemporaryDir folder;
        static unsigned number = 0; // settings of the same name might still be remembered
        m_name = folder.filePath(QString::number(++number));
        QFile file(m_name);
        VXMFC_REQUIRE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    ~InputFile() { QFile::remove(m_name); }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    const QString& name() const { return m_name; }

private:
    QString m_name;
};
