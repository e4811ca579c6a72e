// The sample scripts played by clicks do what the program does with them.

#include "tests/window/scripts/ScriptWindow.h"

#include "till/course/JsonLine.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QUuid>

namespace till {

namespace {

class SampleScripts : public ScriptWindow
{
protected:
    static QStringList samples()
    {
        const QDir folder(TILL_SHARE_DIR "/scripts", "*.till");
        QStringList paths;
        const QStringList names = folder.entryList();
        for (const QString &name : names)
            paths.append(folder.filePath(name));
        return paths;
    }

    //! What is told by \a play, but for times; identifiers are named in the order in which they
    //! come.
    QStringList told(const std::function<void()> &play)
    {
        heard.clear();
        play();
        QHash<QString, QString> names;
        QStringList lines;
        for (QJsonObject note : std::as_const(heard)) {
            note.remove("time");
            lines.append(QString::fromUtf8(jsonLine(named(note, names).toObject())));
        }
        return lines;
    }

private:
    //! \a text, or the name of the identifier that it is.
    static QString named(const QString &text, QHash<QString, QString> &names)
    {
        if (QUuid::fromString(text).isNull())
            return text;
        if (!names.contains(text))
            names.insert(text, QString("identifier %1").arg(names.size() + 1));
        return names[text];
    }
    static QJsonValue named(const QJsonValue &value, QHash<QString, QString> &names)
    {
        if (value.isString())
            return named(value.toString(), names);
        if (value.isArray()) {
            QJsonArray list;
            const QJsonArray values = value.toArray();
            for (const QJsonValue each : values)
                list.append(named(each, names));
            return list;
        }
        if (!value.isObject())
            return value;
        const QJsonObject fields = value.toObject();
        QJsonObject object;
        for (auto field = fields.begin(); field != fields.end(); ++field)
            object.insert(named(field.key(), names), named(field.value(), names));
        return object;
    }
};

TEST_F(SampleScripts, PlayedByClicks_GiveTheTraceOfTheProgram)
{
    ASSERT_GE(samples().size(), 12);
    for (const QString &sample : samples()) {
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        const QStringList byProgram = told([&] {
            Script script;
            must(script.read(sample));
            EXPECT_EQ(faultText(script.play(*commands, [](const QString &) {})), QString());
        });
        start({":memory:", setup().catalogue, setup().plugin, {}, {}});
        ScriptPanel played(*till, notes, *translator);
        played.chooseScript = [&sample](QWidget *, const QString &) { return sample; };
        played.show();
        const auto click = [&played](const char *button) {
            QTest::mouseClick(played.findChild<QPushButton *>(button), Qt::LeftButton);
        };
        const QStringList byClicks = told([&] {
            click("scriptOpen");
            click("scriptRun");
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return played.findChild<QPushButton *>("scriptRun")->text() == "Выполнить"; },
                60000));
        });
        ASSERT_EQ(byClicks.size(), byProgram.size()) << sample.toStdString();
        for (qsizetype line = 0; line < byProgram.size(); ++line)
            EXPECT_EQ(byClicks[line], byProgram[line]) << sample.toStdString();
        EXPECT_GT(byProgram.size(), 10);
    }
}

} // namespace

} // namespace till
