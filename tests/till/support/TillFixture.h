#ifndef TESTS_TILL_SUPPORT_TILLFIXTURE_H
#define TESTS_TILL_SUPPORT_TILLFIXTURE_H

#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Results.h"
#include "till/course/Notes.h"
#include "till/register/CashDesk.h"
#include "till/script/CommandLine.h"

#include <gmock/gmock.h>

#include <memory>
#include <ostream>

namespace till {

void PrintTo(const Outcome &outcome, std::ostream *out);

//! A till of the sample shop with the real plugin, on a database of its own, and what it says.
class TillTest : public FolderTest
{
protected:
    TillTest();
    ~TillTest() override;

    //! The till that tests get unless they ask for another.
    till::Setup setup() const;
    //! Switches a till on in place of the one before; it must start.
    void start(const till::Setup &setup, const QString &language = QStringLiteral("ru"));
    void start() { start(setup()); }

    Outcome run(const QString &line) { return commands->run(line); }
    //! Carries the commands out, all of which must be done.
    void done(const QStringList &lines);
    //! Carries the command out, which must end so.
    Outcome ends(Outcome::Kind kind, const QString &line);
    //! The same for any refusal; the key of its reason.
    QString refused(const QString &line);
    //! The same for a mistake; what is said of it in English.
    QString mistake(const QString &line);
    //! The same for what does not hold.
    QString unexpected(const QString &line);
    //! The same for a failure; its detail.
    QString failed(const QString &line) { return ends(Outcome::Failed, line).detail; }
    //! Each must hold.
    void expect(const QStringList &expectations);

    QSharedPointer<const Receipt> receipt() const { return till->cashRegister().receipt(); }

    //! All that was printed since it was last asked.
    QString takePrinted() { return std::exchange(printed, {}).join(QLatin1Char('\n')); }

    //! The notes of \a kind, in order.
    QList<QJsonObject> notesOf(const QString &kind) const;
    //! What \a field says in each of the notes of \a kind.
    QVariantList noted(const QString &kind, const QString &field) const;

    Notes notes;
    QStringList printed;
    QList<QJsonObject> heard;
    const Subscription hearing;
    std::unique_ptr<Translator> translator;
    std::unique_ptr<CashDesk> till;
    std::unique_ptr<CommandLine> commands;
};

} // namespace till

#endif // TESTS_TILL_SUPPORT_TILLFIXTURE_H
