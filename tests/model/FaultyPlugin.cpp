#include "tests/model/BrokenPlugins.h"

// A plugin's file with one of the faults, FAULT, or with none.

namespace model {

//! Identifiers in the order in which they are given out, so that the same receipt gives the same.
class Counting : public TestPlugin
{
public:
    QString getId() const override
    {
        static int given = 0;
        return QString("{%1}").arg(++given, 36, 10, QLatin1Char('0'));
    }
};

//! No fault.
template <typename Base>
class Sound : public Base
{
};

using Faulty = FAULT<Counting>;

class FaultyPlugin : public Faulty
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
};

} // namespace model

#include "FaultyPlugin.moc"
