#ifndef WINDOW_ARTICLES_ARTICLEPANEL_H
#define WINDOW_ARTICLES_ARTICLEPANEL_H

#include "till/language/Translator.h"
#include "window/articles/ArticleModel.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QButtonGroup;
class QLabel;
class QLineEdit;
class QListView;
QT_END_NAMESPACE

namespace till {

/*!
 * The articles to touch: tiles in groups, of which a search leaves those that contain what is
 * typed, and the code field for a scanner.
 */
class ArticlePanel final : public QWidget
{
public:
    explicit ArticlePanel(const Translator &translator, QWidget *parent = nullptr);

    //! Shows the articles of \a catalogue, which must outlive its being shown.
    void show(const Catalogue &catalogue);
    void translate(const Translator &translator);

    //! What is typed next goes into the code field.
    void focusCode();
    void focusSearch();
    //! Types \a text into the code field, as if it had the focus.
    void typeCode(const QString &text);
    //! Enter in the code field.
    void enterCode();

    /*!
     * Told that so many pieces of the article with that code are to be added: a tile was touched,
     * or a code entered. When it answers true the code field is emptied; else what was typed stays
     * there, selected, so that the next code takes its place.
     */
    std::function<bool(const QString &code, double count)> chosen;
    //! Told what is wrong with what was entered, when there is no code in it. It stays there.
    std::function<void(const Message &mistake)> mistaken;

    //! Opened with the space bar or Enter too, as any tile is.
    QListView &tiles() { return m_tiles; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void layOutTiles();
    void sizeTiles();
    void filter();
    void tellNothing();
    void choose(const QModelIndex &tile);

    using QWidget::show;

    ArticleModel m_articles;
    QLineEdit &m_code;
    QLineEdit &m_search;
    QListView &m_tiles;
    QButtonGroup &m_groups;
    QLabel &m_nothing; //!< stands in place of tiles where there are none
    Translator m_translator;
};

} // namespace till

#endif // WINDOW_ARTICLES_ARTICLEPANEL_H
