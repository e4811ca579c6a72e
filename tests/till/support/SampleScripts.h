#ifndef TESTS_TILL_SUPPORT_SAMPLESCRIPTS_H
#define TESTS_TILL_SUPPORT_SAMPLESCRIPTS_H

#include <QtCore/QDir>
#include <QtCore/QStringList>

#include <gtest/gtest.h>

#include <ostream>

namespace till {

//! One of the scripts that come with the till.
struct SampleScript
{
    QString path;

    QString name() const { return path.section('/', -1).section('.', 0, 0); }
};

inline void PrintTo(const SampleScript &sample, std::ostream *out)
{
    *out << sample.name().toStdString();
}

inline QList<SampleScript> sampleScripts()
{
    QList<SampleScript> samples;
    const QDir folder(QStringLiteral(TILL_SHARE_DIR "/scripts"));
    const QStringList names = folder.entryList({"*.till"}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        samples.append({folder.filePath(name)});
    return samples;
}

//! How a test of it is called.
inline std::string sampleName(const testing::TestParamInfo<SampleScript> &sample)
{
    return sample.param.name().replace('-', '_').toStdString();
}

} // namespace till

#endif // TESTS_TILL_SUPPORT_SAMPLESCRIPTS_H
