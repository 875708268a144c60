// Whether the texts of the windows are in the language whose number they bear: told by comparing them with
// the built-in ones, whose languages are known. Captions and descriptions can't be told like this and aren't.

#include <QHash>

#include "tzf/check/check_context.h"
#include "tzf/tables/languages.h"

namespace {

const QString TEXTS = QStringLiteral("Traduzioni_Viewer_System"), LANGUAGES = QStringLiteral("Lingue");
/// The built-in languages that have texts of their own.
constexpr int HIGHEST_BUILT_IN = 6;

/// Languages by text; a text that two languages share tells nothing.
QHash<QString, int> builtInTexts() {
    QHash<QString, int> languages;
    const auto rows = rowsOfCsv(builtInTable(TEXTS));
    TableRow row;
    while (rows->next(row))
        for (int language = 1; language <= HIGHEST_BUILT_IN; ++language) {
            const int position = rows->position(QStringLiteral("Traduzione_%1").arg(language));
            const QString text = QString::fromUtf8(row[static_cast<size_t>(position)].text);
            const int other = languages.value(text, language);
            languages.insert(text, other == language ? language : 0);
        }
    languages.remove({});
    return languages;
}

QHash<int, QString> keysIn(RowSource& rows) {
    QHash<int, QString> keys;
    const auto id = static_cast<size_t>(rows.position(QStringLiteral("ID"))),
               key = static_cast<size_t>(rows.position(QStringLiteral("Chiave")));
    TableRow row;
    while (rows.next(row))
        keys.insert(row[id].text.toInt(), QString::fromUtf8(row[key].text).toUpper());
    return keys;
}

}  // namespace

void checkTexts(CheckContext& context) {
    if (!context.database.hasTable(TEXTS) || !context.database.hasTable(LANGUAGES))
        return;
    const QHash<QString, int> known = builtInTexts();
    QHash<int, QHash<int, int>> counts;  // by language of the catalogue and of the text
    TableReader rows = context.database.read(TEXTS);
    while (rows.next())
        for (const int language : context.languages)
            ++counts[language][known.value(rows.text(QStringLiteral("Traduzione_%1").arg(language)))];
    const QHash<int, QString> built_in = keysIn(*rowsOfCsv(builtInTable(LANGUAGES)));
    TableReader languages = context.database.read(LANGUAGES);
    while (languages.next()) {
        const int number = languages.text(QStringLiteral("ID")).toInt();
        const QString key = languages.text(QStringLiteral("Chiave")).toUpper();
        const QHash<int, int> found = counts.value(number);
        for (auto other = found.begin(); other != found.end(); ++other) {
            int all = 0;
            for (auto count = found.begin(); count != found.end(); ++count)
                all += count.key() == 0 ? 0 : count.value();
            if (other.key() == 0 || *other < 10 || *other * 2 < all || built_in.value(other.key()) == key)
                continue;
            const int right = built_in.key(key, 0);
            context.warning(LANGUAGES, languages.row(), QStringLiteral("ID"),
                            QStringLiteral("the windows' texts of number %1 (%2) are those of %3")
                                    .arg(number)
                                    .arg(key, built_in.value(other.key())) +
                                (right > 0 && right != number
                                     ? QStringLiteral("; %1 has number %2 there").arg(key).arg(right)
                                     : QString()));
        }
    }
}
