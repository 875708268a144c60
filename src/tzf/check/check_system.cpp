#include <QHash>
#include <QRegularExpression>

#include "core/base/percorsi.h"
#include "tzf/check/check_context.h"

namespace {

const QString TABLE = QStringLiteral("SYSTEM");
const QString VALUE = QStringLiteral("VALORE");

/// What a value has to be. "choice" has its values after a colon, separated by "|".
struct KeyRule {
    const char* key;
    const char* kind;
};

constexpr KeyRule RULES[] = {
    {"VERSIONE", "version"},
    {"LINGUA_START", "language"},
    {"MERCATO_START", "market"},
    {"GRUPPO_START", "groups"},
    {"GRUPPI_SCONTO_START", "discounts"},
    {"UNIFICA_NAVIGAZIONE_VIEWER", "choice:LINGUA|MERCATO|LINGUA_MERCATO|LINGUA_NESSUNA"},
    {"IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE",
     "choice:Libera|Autentificazione_singola|Autentificazione_utente"},
    {"IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN", "text"},
    {"IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_PASSWORD", "text"},
    {"IMPOSTAZIONE_UTENTE_FROM", "person"},
    {"IMPOSTAZIONE_FINESTRA_MASSIMATA", "choice:SI|NO"},
    {"IMPOSTAZIONE_ESPANDI_ALBERO", "choice:SI|NO"},
    {"IMPOSTAZIONE_ESPANDI_NODO_ALBERO", "choice:SI|NO"},
    {"IMPOSTAZIONE_ALTEZZA_DISTINTA_MINIMA", "choice:SI|NO"},
    {"IMPOSTAZIONE_COMPONETI_WEB", "choice:SI|NO"},
    {"IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE", "number"},
    {"IMPOSTAZIONE_VISUALIZZA_QUANTITA", "choice:SI|NO"},
    {"IMPOSTAZIONE_RICHIEDI_QUANTITA_MINIMA", "choice:SI|NO"},
    {"RICERCA_COMPONENTI_TUTTI", "choice:SI|NO"},
    {"IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "choice:SI|NO"},
    {"IMPOSTAZIONE_NODO_HOMEPAGE", "node"},
    {"IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE", "choice:SI|NO"},
    {"LAMPEGGIO_COMPONENTI", "choice:SI|NO"},
    {"PROPRIETA_PROGETTO_TITOLO", "text"},
    {"PROPRIETA_PROGETTO_AUTORE", "text"},
    {"PROPRIETA_PROGETTO_SOCIETA", "text"},
    {"PROPRIETA_PROGETTO_CONTATTI", "text"},
    {"PROPRIETA_PROGETTO_VERSIONE", "text"},
    {"PROPRIETA_PROGETTO_NOTE", "text"},
    {"PUBBLICA_TZF_DATA", "text"},
    {"PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "text"},
    {"PUBBLICA_TZF_INCLUDI_LOGO", "choice:1|0"},
    {"PUBBLICA_TZF_INCLUDI_LOGO_FILE", "picture:PUBBLICA_TZF_INCLUDI_LOGO|Logo_azienda."},
    {"PUBBLICA_TZF_VIEWER_PERSONALIZZATO", "choice:SI|NO"},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO", "choice:1|0"},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO_FILE", "picture:PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO|Immagine_Intro."},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_HOME", "choice:1|0"},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_HOME_FILE", "picture:PUBBLICA_TZF_VIEWER_IMMAGINE_HOME|Immagine_Home."},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI", "choice:1|0"},
    {"PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI_FILE",
     "picture:PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI|Immagine_Contatti."},
    {"PUBBLICA_TZF_VIEWER_EMAIL", "text"},
    {"PUBBLICA_TZF_VIEWER_SITO", "text"},
};

struct Setting {
    QString value;
    qint64 row = 0;
};

class SystemCheck {
  public:
    explicit SystemCheck(CheckContext& context) : context_(context) {}
    void run();

  private:
    void read();
    void checkKey(const QString& key, const Setting& setting);
    void checkLayout(const QRegularExpressionMatch& match, const Setting& setting);
    void checkPicture(const QStringList& parameters, const Setting& setting);
    void checkDescription(const Setting& setting, const QString& column, const QString& active);
    void checkPerson(const Setting& setting);
    QString value(const QString& key) const { return settings_.value(key).value; }
    void error(const Setting& setting, const QString& message) {
        context_.error(TABLE, setting.row, VALUE, message);
    }

    CheckContext& context_;
    QMap<QString, Setting> settings_;
};

void SystemCheck::run() {
    if (!context_.database.hasTable(TABLE))
        return;
    read();
    for (auto it = settings_.begin(); it != settings_.end(); ++it)
        checkKey(it.key(), *it);
    if (!settings_.contains(QStringLiteral("VERSIONE")))
        context_.error(TABLE, 0, {},
                       QStringLiteral("key VERSIONE is missing, so the viewer takes the catalogue for an "
                                      "older one"));
}

void SystemCheck::read() {
    TableReader rows = context_.database.read(TABLE);
    while (rows.next()) {
        const QString key = rows.text(QStringLiteral("KEY")).toUpper();
        if (settings_.contains(key))
            context_.error(
                TABLE, rows.row(), QStringLiteral("KEY"),
                QStringLiteral("key %1 stands in row %2 already").arg(key).arg(settings_[key].row));
        else
            settings_.insert(key, {rows.text(VALUE).trimmed(), rows.row()});
    }
}

void SystemCheck::checkKey(const QString& key, const Setting& setting) {
    static const QRegularExpression layout(
        QStringLiteral("^PRINT_EXTENSION_([0-9]+)_([0-9]+)_((?:PAGE|ORDER)_[12])$"));
    if (const auto match = layout.match(key); match.hasMatch())
        return checkLayout(match, setting);
    const auto rule = std::find_if(std::begin(RULES), std::end(RULES),
                                   [&](const KeyRule& r) { return key == QLatin1String(r.key); });
    if (rule == std::end(RULES))
        return context_.error(TABLE, setting.row, QStringLiteral("KEY"),
                              QStringLiteral("\"%1\" is no key").arg(key));

    const QString kind = QString::fromLatin1(rule->kind).section(u':', 0, 0);
    const QStringList parameters = QString::fromLatin1(rule->kind).section(u':', 1).split(u'|');
    bool ok = true;
    if (kind == u"version") {
        const double version = QString(setting.value).replace(u',', u'.').toDouble(&ok);
        if (!ok || version < 4.1)
            error(setting, QStringLiteral("\"%1\" isn't a version from 4.1 on").arg(setting.value));
    } else if (setting.value.isEmpty()) {
        return;  // as if the key weren't there
    } else if (kind == u"choice") {
        if (!parameters.contains(setting.value))
            error(setting, QStringLiteral("%1 is \"%2\", and can be %3")
                               .arg(key, setting.value, parameters.join(QStringLiteral(", "))));
    } else if (kind == u"number") {
        const double number = QString(setting.value).replace(u',', u'.').toDouble(&ok);
        if (!ok || number < 0)
            error(setting, QStringLiteral("%1 is \"%2\", and has to be a number").arg(key, setting.value));
    } else if (kind == u"language") {
        checkDescription(setting, QStringLiteral("Descrizione_Lingua"), QStringLiteral("Attiva_Lingua"));
    } else if (kind == u"market") {
        checkDescription(setting, QStringLiteral("Descrizione_Mercato"), QStringLiteral("Attiva_Mercato"));
    } else if (kind == u"groups" || kind == u"discounts") {
        const QSet<QString>& known = kind == u"groups" ? context_.groups : context_.discounts;
        for (const QString& item : context_.listValues(TABLE, setting.row, VALUE, setting.value))
            if (!known.contains(item))
                error(setting, QStringLiteral("%1: there is no \"%2\"").arg(key, item));
    } else if (kind == u"node") {
        if (setting.value != u"R" && !context_.nodes.contains(setting.value))
            error(setting, QStringLiteral("%1: there is no node \"%2\"").arg(key, setting.value));
    } else if (kind == u"person") {
        checkPerson(setting);
    } else if (kind == u"picture") {
        checkPicture(parameters, setting);
    }
}

void SystemCheck::checkLayout(const QRegularExpressionMatch& match, const Setting& setting) {
    const int language = match.captured(1).toInt(), market = match.captured(2).toInt();
    if (!context_.numbers.contains(language) || !context_.numbers.contains(market))
        context_.error(TABLE, setting.row, QStringLiteral("KEY"),
                       QStringLiteral("%1: there is no such language or market").arg(match.captured()));
    if (setting.value == u"1")
        context_.checkFile(TABLE, setting.row, VALUE,
                           QStringLiteral("%1_%2_%3.mdp").arg(language).arg(market).arg(match.captured(3)));
    else if (!setting.value.isEmpty() && setting.value != u"0")
        error(setting, QStringLiteral("%1 is \"%2\", and can be 1, 0").arg(match.captured(), setting.value));
}

void SystemCheck::checkPicture(const QStringList& parameters, const Setting& setting) {
    // The name given tells the extension only; the entry's stem is fixed.
    const bool on = value(QStringLiteral("PUBBLICA_TZF_VIEWER_PERSONALIZZATO")) == u"SI" &&
                    value(parameters.at(0)) == u"1";
    if (on)
        context_.checkFile(TABLE, setting.row, VALUE, parameters.at(1) + Estensione_File(setting.value));
}

void SystemCheck::checkDescription(const Setting& setting, const QString& column, const QString& active) {
    if (!context_.database.hasTable(QStringLiteral("Lingue")))
        return;
    TableReader rows = context_.database.read(QStringLiteral("Lingue"));
    while (rows.next()) {
        if (rows.text(column) != setting.value)
            continue;
        if (rows.text(active).compare(u"TRUE", Qt::CaseInsensitive) != 0)
            context_.warning(TABLE, setting.row, VALUE,
                             QStringLiteral("\"%1\" isn't offered").arg(setting.value));
        return;
    }
    error(setting, QStringLiteral("no row of Lingue has \"%1\" as %2").arg(setting.value, column));
}

void SystemCheck::checkPerson(const Setting& setting) {
    if (setting.value == u"-")
        return;
    if (context_.database.hasTable(QStringLiteral("Anagrafico"))) {
        TableReader rows = context_.database.read(QStringLiteral("Anagrafico"));
        while (rows.next())
            if (rows.text(QStringLiteral("Identificativo")) == setting.value)
                return;
    }
    error(setting, QStringLiteral("Anagrafico has no \"%1\"").arg(setting.value));
}

}  // namespace

void checkSystem(CheckContext& context) {
    SystemCheck(context).run();
}
