#ifndef WINDOW_ARTICLES_CODEENTRY_H
#define WINDOW_ARTICLES_CODEENTRY_H

#include <QtCore/QString>

#include <optional>

namespace till {

//! What stands in the code field: "PET1", or "3*PET1" for three of them. A scanner types the code
//! and Enter; a cashier types "3*" before.
struct CodeEntry
{
    std::optional<double> count; //!< pieces, as far as one was typed
    QString code;

    /*!
     * Reads \a text. The count stands before "*", "x" or "×" (also the Cyrillic "х"), written as
     * quantities are, with a point or a comma. What is no count before such a sign belongs to the
     * code.
     */
    static CodeEntry read(const QString &text);

    //! The count that \a text is by itself: "3" or "3*"; nothing for all else.
    static std::optional<double> countAlone(const QString &text);
};

} // namespace till

#endif // WINDOW_ARTICLES_CODEENTRY_H
