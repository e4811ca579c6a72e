#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QCborMap>
#include <QtCore/QCborValue>
#include <QtCore/QFile>
#include <QtCore/qplugin.h>

#include <algorithm>
#include <cstring>
#include <link.h>

// The record as it lies in the file: four bytes of header, then a map in CBOR.

namespace {

enum Key { Interface = 2, ClassName = 3 }; // Qt's numbers in the map

QByteArray contents()
{
    QFile file(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

//! The payload of the ELF note in which Qt looks for the record; empty when there is none.
QByteArray record()
{
    using Note = QPluginMetaData::ElfNoteHeader;
    const QByteArray file = contents();
    ElfW(Ehdr) header;
    std::memcpy(&header, file.constData(), sizeof header);
    for (int i = 0; i < header.e_phnum; ++i) {
        ElfW(Phdr) segment;
        std::memcpy(&segment, file.constData() + header.e_phoff + i * header.e_phentsize,
                    sizeof segment);
        if (segment.p_type != PT_NOTE)
            continue;
        const QByteArray notes = file.mid(qsizetype(segment.p_offset), qsizetype(segment.p_filesz));
        const qsizetype name = notes.indexOf(QByteArray(Note::NoteName, sizeof Note::NoteName));
        if (name < 0)
            continue;
        quint32 length = 0;
        std::memcpy(&length, notes.constData() + name - 8, sizeof length);
        return notes.mid(name + qsizetype(sizeof Note::NoteName), length);
    }
    return {};
}

TEST(MetadataRecord, Header_IsFormatOneOfThisQt)
{
    const QByteArray bytes = record();

    ASSERT_GE(bytes.size(), 4);
    EXPECT_EQ(quint8(bytes[0]), 1);
    EXPECT_EQ(quint8(bytes[1]), QT_VERSION_MAJOR);
    EXPECT_EQ(quint8(bytes[2]), QT_VERSION_MINOR);
}

TEST(MetadataRecord, ArchitectureByte_IsTheOneThatQtSets)
{
    const QByteArray bytes = record();

    ASSERT_GE(bytes.size(), 4);
    EXPECT_EQ(quint8(bytes[3]), QPluginMetaData::archRequirements());
}

TEST(MetadataRecord, Map_HoldsInterfaceAndClassNameAndNothingElse)
{
    const QCborValue value = QCborValue::fromCbor(record().mid(4));

    const QCborMap expected{{Interface, QStringLiteral("PackagingControl")},
                            {ClassName, QStringLiteral("PackagingControl")}};
    EXPECT_TRUE(value.isMap());
    EXPECT_EQ(value.toMap(), expected);
}

} // namespace
