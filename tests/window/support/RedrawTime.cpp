// What a command costs in the window, beside what it costs the register alone: milliseconds of the
// median of many, on a receipt of so many positions.

#include "tests/till/support/SampleShop.h"
#include "tests/window/support/Hands.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace till;

namespace {

double median(std::vector<double> times)
{
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2),
                     times.end());
    return times[times.size() / 2];
}

//! Changes the goods \a posnum to and fro, and draws what came of it at once.
double timed(const std::function<void(const Command &)> &carryOut, int posnum)
{
    std::vector<double> times;
    for (int turn = 0; turn < 41; ++turn) {
        QElapsedTimer timer;
        timer.start();
        carryOut(command::ChangeCount{posnum, turn % 2 == 0 ? 2.0 : 3.0});
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return median(times);
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false")); // as the window has it
    const int positions = argc > 1 ? std::atoi(argv[1]) : 1000;
    Notes notes;
    CashDesk desk(sampleShop(QStringLiteral(":memory:")), notes);
    const Result<> started = desk.start();
    if (!started)
        return 1;
    const auto bare = [&](const Command &command) { desk.cashRegister().carryOut(command); };
    bare(command::Open{});
    for (int count = 0; count < positions / 2; ++count) {
        bare(command::Add{QStringLiteral("CAN3")});
        bare(command::Add{QStringLiteral("BEER"), 3});
    }
    const double alone = timed(bare, positions);
    TillWindow window(desk, notes, QStringLiteral("en"));
    window.switchOn();
    window.shelf().setMoving(false);
    static_cast<QWidget &>(window).show();
    if (!QTest::qWaitForWindowExposed(&window, patience))
        return 1;
    const auto drawn = [&](const Command &command) {
        window.carryOut(command);
        QCoreApplication::processEvents();
    };
    const double all = timed(drawn, positions);
    std::printf("%d positions: %.2f ms, of which %.2f ms are the register's\n", positions, all,
                alone);
    return 0;
}
