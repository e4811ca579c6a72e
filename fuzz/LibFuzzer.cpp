#include FUZZ_HEADER

#include <QtCore/QByteArray>
#include <QtCore/QLoggingCategory>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules("*=false");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString finding = fuzz::FUZZ_RUN(
        QByteArrayView(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (!finding.isEmpty()) {
        std::fprintf(stderr, "finding: %s\n", finding.toUtf8().constData());
        std::abort();
    }
    return 0;
}
