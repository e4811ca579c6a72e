#ifndef TESTS_FUZZ_CORPUS_H
#define TESTS_FUZZ_CORPUS_H

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

//! Runs every input of the corpus \a name through \a run, which says what it finds.
inline void replay(const QString &name, QString (*run)(QByteArrayView bytes))
{
    const QDir folder(FUZZ_CORPUS "/" + name);
    const QStringList files = folder.entryList(QDir::Files, QDir::Name);
    EXPECT_FALSE(files.isEmpty());
    for (const QString &path : files) {
        SCOPED_TRACE(path.toStdString());
        QFile file(folder.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ("", run(file.readAll()).toStdString());
    }
}

#endif // TESTS_FUZZ_CORPUS_H
