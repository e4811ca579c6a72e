#ifndef TESTS_MODEL_QUIETLOG_H
#define TESTS_MODEL_QUIETLOG_H

#include <QtCore/QLoggingCategory>

namespace model {

//! While it lives, what the plugin logs is not shown: a million lines are for nobody to read.
class QuietLog
{
public:
    QuietLog() { QLoggingCategory::setFilterRules("packaging=false"); }
    ~QuietLog() { QLoggingCategory::setFilterRules({}); }
    Q_DISABLE_COPY_MOVE(QuietLog)
};

} // namespace model

#endif // TESTS_MODEL_QUIETLOG_H
