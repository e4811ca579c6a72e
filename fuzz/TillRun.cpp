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
    if (const auto started = desk.start(); !started)
        return "the till does not start: " + started.error().text();
    const till::Translator translator;
    till::CommandLine commands(desk, notes, translator, {}, {[](const QString &) {}, {}, false});
    const auto played = script.play(commands, [](const QString &) {});
    if (!played && !played.error().place.startsWith(path + ':'))
        return "a fault without its place: " + played.error().text();
    if (!desk.isOn())
        return played ? "the till is off" : "the till is off: " + played.error().text();
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
    if (const auto read = script.read(file.path()); !read)
        return read.error().place.startsWith(file.path())
                   ? QString()
                   : "a fault without its place: " + read.error().text();
    return play(script, file.path(), bytes.startsWith("#-") ? QString() : FUZZ_PLUGIN);
}

} // namespace fuzz
