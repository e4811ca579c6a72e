#include "fuzz/TillRun.h"

#include "fuzz/MemoryFile.h"
#include "till/script/Script.h"

#include <QtCore/QCoreApplication>

namespace fuzz {

namespace {

//! The program's own, or one that stays: the database wants it.
void needApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *names[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(count, names);
}

QString play(const till::Script &script, const QString &path, const QString &plugin)
{
    till::Notes notes;
    till::CashDesk desk({":memory:", FUZZ_CATALOGUE, plugin, {}, {}}, notes);
    if (const QString error = desk.start(); !error.isEmpty())
        return "the till does not start: " + error;
    const till::Translator translator;
    till::CommandLine commands(desk, notes, translator, {}, {[](const QString &) {}, {}});
    const QString wrong = script.play(commands, [](const QString &) {});
    if (!wrong.isEmpty() && !wrong.startsWith(path + ':'))
        return "an error without its place: " + wrong;
    if (!desk.isOn())
        return "the till is off: " + wrong;
    if (desk.cashRegister().receipt() && commands.renderReceipt().isEmpty())
        return "a receipt that cannot be seen";
    return {};
}

} // namespace

QString playScript(QByteArrayView bytes)
{
    needApplication();
    const MemoryFile file(bytes);
    if (!file.isWhole())
        return "the file could not be made";
    till::Script script;
    if (const QString error = script.read(file.path()); !error.isEmpty())
        return error.startsWith(file.path() + ':') ? QString()
                                                   : "an error without its place: " + error;
    return play(script, file.path(), bytes.startsWith("#-") ? QString() : FUZZ_PLUGIN);
}

} // namespace fuzz
