#include "contract/Checks.h"

#include <log4qt/logger.h>
#include <log4qt/logmanager.h>

namespace contract {

namespace {

Finding oneLogger()
{
    Log4Qt::Logger *const one = Log4Qt::LogManager::logger(QStringLiteral("packaging"));
    Log4Qt::Logger *const again = Log4Qt::LogManager::logger(QStringLiteral("packaging"));
    return judge({{one != nullptr, QStringLiteral("no logger")},
                  {one == again, QStringLiteral("another logger each time")}});
}

} // namespace

Checks logChecks()
{
    return {
        {"Log.OneLogger", "the logger \"packaging\" is one object however often it is asked for",
         "the plugin's log lines are not found", oneLogger},
    };
}

} // namespace contract
