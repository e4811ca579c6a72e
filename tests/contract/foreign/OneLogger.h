#ifndef TESTS_CONTRACT_FOREIGN_ONELOGGER_H
#define TESTS_CONTRACT_FOREIGN_ONELOGGER_H

// Log4Qt is not this host's: where its one promise is broken, another manager stands in its place.
#if defined(SHOPLINE_BREAKS_Log_OneLogger)
#    include <log4qt/logger.h>
#    include <log4qt/logmanager.h>

namespace Log4Qt {

struct ForgetfulManager
{
    static Logger *logger(const QString &name) { return new Logger(name); }
};

} // namespace Log4Qt

#    define LogManager ForgetfulManager
#endif

#endif // TESTS_CONTRACT_FOREIGN_ONELOGGER_H
