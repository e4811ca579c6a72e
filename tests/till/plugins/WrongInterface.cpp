#include <QtCore/QObject>

namespace {

// Tells on whoever runs this library's code.
[[maybe_unused]] const bool wasRun = qputenv("WRONG_INTERFACE_WAS_RUN", "1");

} // namespace

class WrongInterface : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "AnotherControl")
};

#include "WrongInterface.moc"
