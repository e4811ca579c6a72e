#ifndef TESTS_TILL_VIEW_SHOWNRECEIPT_H
#define TESTS_TILL_VIEW_SHOWNRECEIPT_H

#include "till/view/ReceiptView.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

//! A receipt of a shop that sells draught goods, and what a cashier sees of it.
class ShownReceipt : public testing::Test
{
protected:
    static till::ArticleData beer()
    {
        return {"101", "Пиво светлое", 15000, Tmc::PackagingGoods, 0.0, 1.0, "л"};
    }
    static till::ArticleData kvass()
    {
        return {"102", "Квас", 8050, Tmc::PackagingGoods, 0.0, 1.0, "л"};
    }
    static till::ArticleData bottle()
    {
        return {"201", "Бутылка ПЭТ 5 л", 2500, Tmc::Tara, 5.0, 1.0, "шт"};
    }
    static till::ArticleData nuts()
    {
        return {"301", "Орешки солёные, пакет", 9900, Tmc::NoTara, 0.0, 0.2, "кг"};
    }

    //! Appends a position; its number is the count of positions so far.
    int add(const till::ArticleData &article, double count)
    {
        const auto position = receipt.add(QSharedPointer<till::Article>::create(article), count);
        receipt.touch();
        return position->getPosnum();
    }

    //! Appends a tara position and notes it under the identifier "{number}".
    void addTara(double capacity, double free)
    {
        const int posnum = add(bottle(), 1);
        taras.taras.append({posnum, idOf(posnum), capacity, free});
    }

    //! Appends a position of beer and notes which taras it is in.
    void addBeer(double count, const QMap<QString, double> &used)
    {
        const int posnum = add(beer(), count);
        taras.goods.append({posnum, used});
    }

    //! A receipt with every kind of line.
    void sellOfEverything()
    {
        receipt.setStored(12);
        addTara(5.0, 2.0);
        addBeer(3.0, {{idOf(1), 3.0}});
        add(kvass(), 1.5);
        add(nuts(), 3);
        receipt.storno(3);
        receipt.touch();
    }

    static QString idOf(int posnum) { return QStringLiteral("{%1}").arg(posnum); }

    till::ReceiptView view() const { return till::ReceiptView(till::Translator(language), style); }

    QString shown(till::TaraControl control = till::TaraControl::Active) const
    {
        return view().render(receipt, taras, control);
    }

    //! The line of the position with that number.
    QString row(int posnum) const { return shown().split('\n').value(rowOf(posnum)); }
    //! The lines below the position with that number, up to the next row or rule, unindented.
    QStringList notesOf(int posnum) const
    {
        const QStringList lines = shown().split('\n');
        QStringList notes;
        for (int at = rowOf(posnum) + 1; lines.value(at).startsWith("     "); ++at)
            notes.append(lines.at(at).mid(5));
        return notes;
    }

    till::Receipt receipt{Document::Sale};
    till::TaraState taras;
    QString language = "ru";
    till::Style style;

private:
    //! Which line shows the position, in a receipt without colours.
    int rowOf(int posnum) const
    {
        const QStringList lines = shown().split('\n');
        const QRegularExpression row(QStringLiteral("[ x] *%1  .*").arg(posnum));
        const auto at = lines.indexOf(row);
        EXPECT_GE(at, 0) << "no row of position " << posnum;
        return int(at);
    }
};

#endif // TESTS_TILL_VIEW_SHOWNRECEIPT_H
