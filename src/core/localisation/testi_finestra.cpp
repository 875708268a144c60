// The texts of a window's controls: applied from the text catalogue, or collected for it.

#include <QHash>
#include <exception>

#include "core/base/testo.h"
#include "core/localisation/collection_traduzioni.h"

namespace {

/// What of a control is a text, by its type.
enum class Genere { Nessuno, Testo_E_Suggerimento, Solo_Suggerimento, Parti };

Genere Genere_Oggetto(const QString& tipo) {
    static const QHash<QString, Genere> GENERI = {
        {QStringLiteral("Form"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("Label"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("CheckBox"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("Frame"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("OptionButton"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("CommandButton"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("Menu"), Genere::Testo_E_Suggerimento},
        {QStringLiteral("Image"), Genere::Solo_Suggerimento},
        {QStringLiteral("TextBox"), Genere::Solo_Suggerimento},
        {QStringLiteral("ComboBox"), Genere::Solo_Suggerimento},
        {QStringLiteral("VScrollBar"), Genere::Solo_Suggerimento},
        {QStringLiteral("HScrollBar"), Genere::Solo_Suggerimento},
        {QStringLiteral("Toolbar"), Genere::Parti},
        {QStringLiteral("SSTab"), Genere::Parti},
        {QStringLiteral("ListView"), Genere::Parti},
    };
    return GENERI.value(tipo, Genere::Nessuno);
}

/// Runs one step of the work on a window; a failure leaves what it was about as it stands.
template <class Passo>
void Tollera(Passo passo) {
    try {
        passo();
    } catch (const std::exception&) {
    }
}

QString Dove(const QString& finestra, const QString& oggetto) {
    return QStringLiteral(" WHERE Form ='") + Con_Apici_Raddoppiati(finestra) +
           QStringLiteral("' AND Name_Object='") + Con_Apici_Raddoppiati(oggetto) + u'\'';
}

void Applica(Oggetto_Form& oggetto, Genere genere, const Recordset& riga) {
    const QString testo = riga.Campo(0).Testo();
    if (genere == Genere::Parti) {
        // Kept: a part beyond the last of the row gets the end marker of the tokens.
        const QStringList parti = Token(testo, u"/");
        const int quante = oggetto.Parti();
        for (int i = 1; i <= quante; ++i)
            Tollera([&] { oggetto.Imposta_Parte(i, i <= parti.size() ? parti[i - 1] : FINE_TOKEN); });
        return;
    }
    if (genere == Genere::Testo_E_Suggerimento)
        Tollera([&] { oggetto.Imposta_Testo(Trim(testo)); });
    Tollera([&] { oggetto.Imposta_Suggerimento(Trim(riga.Campo(1).Testo())); });
}

QString Parti_Unite(const Oggetto_Form& oggetto) {
    QStringList parti;
    const int quante = oggetto.Parti();
    for (int i = 1; i <= quante; ++i)
        parti.append(oggetto.Parte(i));
    return parti.join(u'/');
}

/// A text as an extraction keeps it: a blank stands for none.
QString Testo_Estratto(const QString& testo) {
    return Trim(testo).isEmpty() ? QStringLiteral(" ") : testo;
}

QString Letterale(const QString& testo) {
    return u'\'' + Con_Apici_Raddoppiati(testo) + u'\'';
}

}  // namespace

void Collection_Traduzioni::Carica_Testi_Form(Finestra_Testi& finestra, const QString& lingua) const {
    if (lingua.isEmpty())
        return;
    const QString scelta = QStringLiteral("SELECT Traduzione_%1, Traduzione_Tooltiptext_%1").arg(lingua) +
                           QStringLiteral(" FROM Traduzioni_Viewer_System");
    const QString fine = QStringLiteral(" ;");
    for (const std::unique_ptr<Oggetto_Form>& oggetto : finestra.Oggetti()) {
        Tollera([&] {
            const Genere genere = Genere_Oggetto(oggetto->Tipo());
            if (genere == Genere::Nessuno)
                return;
            QString dove = Dove(finestra.Nome(), oggetto->Nome());
            if (const std::optional<int> indice = oggetto->Indice())
                dove += QStringLiteral(" AND Index='%1'").arg(*indice);
            const Recordset riga = database_.Apri_Recordset(scelta + dove + fine);
            if (!riga.EOF_())
                Applica(*oggetto, genere, riga);
        });
    }
    Tollera([&] {
        const Recordset riga =
            database_.Apri_Recordset(scelta + Dove(finestra.Nome(), finestra.Nome()) + fine);
        if (!riga.EOF_())
            finestra.Imposta_Titolo(Trim(riga.Campo(0).Testo()));
    });
}

void Collection_Traduzioni::Estrapola_Oggetti_Form(Finestra_Testi& finestra) const {
    if (!messaggi_.Chiedi(QStringLiteral("Estrapola testi")))
        return;
    const QString nome = finestra.Nome();
    for (const std::unique_ptr<Oggetto_Form>& oggetto : finestra.Oggetti()) {
        const QString tipo = oggetto->Tipo();
        const Genere genere = Genere_Oggetto(tipo);
        if (genere == Genere::Nessuno)
            continue;
        QString testo;
        if (genere == Genere::Parti)
            testo = Parti_Unite(*oggetto);
        else if (genere == Genere::Testo_E_Suggerimento)
            testo = oggetto->Testo();
        const bool senza_suggerimento = tipo == u"Menu" || tipo == u"SSTab" || tipo == u"Toolbar" ||
                                        tipo == u"VScrollBar" || tipo == u"HScrollBar";
        const QString suggerimento = senza_suggerimento ? QString() : oggetto->Suggerimento();
        const std::optional<int> indice = oggetto->Indice();
        Scrivi_Estratto(nome, oggetto->Nome(), indice ? QString::number(*indice) : QStringLiteral(" "),
                        {{QStringLiteral("Traduzione_1"), Testo_Estratto(testo)},
                         {QStringLiteral("Traduzione_Tooltiptext_1"), Testo_Estratto(suggerimento)}});
    }
    Scrivi_Estratto(nome, nome, QStringLiteral(" "), {{QStringLiteral("Traduzione_1"), finestra.Titolo()}});
}

void Collection_Traduzioni::Scrivi_Estratto(const QString& finestra, const QString& oggetto,
                                            const QString& indice, const Colonne& colonne) const {
    const QString dove = Dove(finestra, oggetto) + QStringLiteral(" AND Index=") + Letterale(indice);
    const bool esiste =
        !database_.Apri_Recordset(QStringLiteral("SELECT * FROM Oggetti_Form") + dove + QStringLiteral(" ;"))
             .EOF_();
    QStringList nomi{QStringLiteral("Form"), QStringLiteral("Name_Object"), QStringLiteral("Index")};
    QStringList valori{Letterale(finestra), Letterale(oggetto), Letterale(indice)};
    QStringList modifiche;
    for (const auto& [colonna, testo] : colonne) {
        nomi.append(colonna);
        valori.append(Letterale(testo));
        modifiche.append(colonna + u'=' + Letterale(testo));
    }
    if (esiste)
        database_.Esegui(QStringLiteral("UPDATE Oggetti_Form SET ") + modifiche.join(u',') + dove +
                         QStringLiteral(" ;"));
    else
        database_.Esegui(QStringLiteral("INSERT INTO Oggetti_Form (") + nomi.join(u',') +
                         QStringLiteral(") VALUES (") + valori.join(u',') + QStringLiteral(") ;"));
}
