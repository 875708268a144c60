#include "support/ordini_di_prova.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

#include "core/base/testo.h"
#include "core/cart/modifica.h"

QByteArray Passo_Ordine::Riga() const {
    // Of each kind its name and those of the two texts.
    static const QString nomi[][3] = {{"add", "code", "reference"},
                                      {"hotspot", "name", "code"},
                                      {"quantity", "line", "text"},
                                      {"note", "line", "text"},
                                      {"remove", "line", ""}};
    const auto& [nome, nome_a, nome_b] = nomi[genere];
    QJsonObject campi{{"product", prodotto}, {nome_a, a}};
    if (genere != Togli && !(genere == Oggetto && b.isEmpty()))
        campi[nome_b] = b;
    return QJsonDocument(QJsonObject{{nome, campi}}).toJson(QJsonDocument::Compact) + '\n';
}

void Passo_Ordine::Esegui(const Aggiunta_Carrello& carrello, Messaggi& messaggi) const {
    Senza_Tavola tavola;
    try {
        switch (genere) {
            case Aggiungi:
                carrello.Aggiungi_Componente_Carrello_Evidenzia_Tavola(tavola, prodotto, a, b);
                break;
            case Oggetto:
                carrello.Aggiungi_Da_Tavola(
                    a, prodotto, Key_Da_Nodo(a),
                    [&](const QString&, const QString& prodotto_scelto, const QString& riferimento) {
                        if (!b.isEmpty())
                            carrello.Aggiungi_Da_Selezione(prodotto_scelto, b, riferimento);
                        return !b.isEmpty();
                    });
                break;
            case Quantita:
                Modifica_Quantita(carrello, prodotto, a, b);
                break;
            case Nota:
                Modifica_Nota(carrello.Selezionati, prodotto, a, b);
                break;
            case Togli:
                Elimina_Riga(carrello.Selezionati, prodotto, a);
                break;
        }
    } catch (const std::exception& errore) {
        messaggi.Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
    }
}

QString Riga_Ordine(const QStringList& celle, const QStringList& tag, int note) {
    // A total bears neither a product nor the sign of a linked component.
    if (tag.value(1) != u"Prodotto| ")
        return celle.join(u'|');
    return celle.value(note) + " = " + celle.mid(note + 1).join("; ");
}

QStringList Righe_Ordine(const Griglia& griglia, const Tag_Griglia& tag, int note) {
    QStringList righe;
    for (int r = 1; griglia.Visible && r < griglia.Rows(); ++r) {
        QStringList celle, tag_riga;
        for (int c = 0; c < griglia.Cols(); ++c) {
            celle += griglia.TextMatrix(r, c);
            tag_riga += tag.At(r, c);
        }
        righe += Riga_Ordine(celle, tag_riga, note);
    }
    return righe;
}

namespace {

void Colonna(Catalogo_Di_Prova& c, int ordine, const char* nome, const char* titolo, const char* tipo,
             const char* size) {
    c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", nome},
                                    {"Titolo_Colonna", titolo},
                                    {"Visualizzato", "Yes"},
                                    {"Ordine", QString::number(ordine)},
                                    {"Indice_Primario", qstrcmp(nome, "Campo01") == 0 ? "Yes" : "No"},
                                    {"Tipo_Colonna", tipo},
                                    {"Size", size}});
}

/// A text, "" for NULL.
Valore_Prova Testo_O_Null(const char* testo) {
    return *testo ? Valore_Prova(testo) : std::nullopt;
}

}  // namespace

Catalogo_Di_Prova Catalogo_Ordini(Variante variante) {
    Catalogo_Di_Prova c;
    c.Svuota_Tabella("Struttura_Componenti");
    Colonna(c, 1, "Campo01", "Codice", "Text [255 car.]", "15");
    if (variante != Variante::Senza_Prezzi)
        Colonna(c, 2, "Campo03", "Prezzo", "Price", "2");
    if (variante == Variante::Due_Prezzi)
        Colonna(c, 3, "Listino", "Listino", "Price", "0");
    Colonna(c, 4, "Sconto", "Sconto", "Discount", "");
    if (variante == Variante::Due_Prezzi)
        Colonna(c, 5, "Sconto_2", "Sconto 2", "Discount", "");
    Colonna(c, 6, "Collegati", "Collegati", "Memo", "");
    Colonna(c, 7, "Confezione", "Confezione", "Quantity", "");
    if (variante == Variante::Obbligata)
        c.Sistema("IMPOSTAZIONE_RICHIEDI_QUANTITA_MINIMA", "SI");
    if (variante == Variante::Sconto_Base)
        c.Sistema("GRUPPI_SCONTO_START", "/D10/");
    for (const auto& [chiave, testo] :
         {std::pair("NOTE", "Nota"), std::pair("TOTALE", " totale"), std::pair("TOTALE_ORDINE", "Totale"),
          std::pair("TOTALE_SCONTO", "Sconto"), std::pair("TOTALE_ORDINE_NETTO", "Netto")})
        c.Riga("Traduzioni_Viewer_System", {{"Form", "DESCRIZIONE"},
                                            {"Name_Object", chiave},
                                            {"Tipo", "DESCRIZIONE"},
                                            {"Traduzione_1", testo},
                                            {"Traduzione_2", testo},
                                            {"Traduzione_3", testo}});

    c.Prodotto("P_1", "R", "Uno").Prodotto("P_2", "R", "Due");
    const struct {
        const char *codice, *prezzo, *passo, *sconto, *collegati, *riferimento;
    } parti[] = {{"A", "10", "", "", "", "1"},
                 {"B", "2.5", "5", "", "", "2"},
                 {"C", "0.335", "", "", "", "3"},
                 {"D", "100", "", "/D10/", "", "4"},
                 {"E", "100", "5", "/QTA/", "", "5"},
                 {"F", "100", "2", "/TOT/", "", "6"},
                 {"G", "100", "", "/D10/D5/", "", "7"},
                 {"S", "4", "2.5", "", "", "8"},
                 {"S3", "4", "3,5", "", "", "9"},
                 {"Z", "4", "0", "", "", "10"},
                 {"V", "12,50", "", "", "", "11"},
                 {"R", "a richiesta", "", "", "", "12"},
                 {"N", "", "", "", "", "13"},
                 {"GRANDE", "16777216", "", "", "", "14"},
                 {"UNO", "1", "", "", "", "15"},
                 {"O'R", "1", "", "", "", "16"},
                 {"CENTO", "100", "", "/D100/", "", "17"},
                 {"CENTO10", "100", "", "/D100/D10/", "", "18"},
                 {"FINE", "100", "", "/FINE/", "", "19"},
                 {"TUTTI", "100", "", "/TUTTI/", "", "20"},
                 {"ALTRO", "100", "", "/ALTRO/", "", "21"},
                 {"GUASTO", "100", "", "/D10/GUASTO/D5/", "", "22"},
                 {"DUE", "100", "", "/DUE/", "", "23"},
                 {"MISTO", "100", "10", "/MISTO/", "", "24"},
                 {"ENORME", "1", "40000", "", "", "25"},
                 {"KIT", "50", "", "", "L§2/M§0.5", "30"},
                 {"L", "3", "", "", "P§4", "31"},
                 {"M", "7.7", "", "", "", "32"},
                 {"P", "1.1", "", "", "KIT§1", "33"},
                 {"SE", "5", "", "", "SE§2/A§1", "34"},
                 {"SCONTATO", "1", "", "", "D§2", "35"},
                 {"IGNOTO", "9", "", "", "NESSUNO§3", "36"},
                 {"NUDO", "1", "", "", " A / M § 3 ", "37"}};
    int numero = 0;
    for (const auto& p : parti) {
        c.Parte("P_1", p.riferimento, p.codice, p.codice, {{"Quantita_min", Testo_O_Null(p.passo)}});
        ++numero;
        // The master has the same data, but for the step.
        for (const char* tabella : {"Componenti_Web", "Componenti"})
            c.Cambia(tabella, numero, "Campo03", Testo_O_Null(p.prezzo))
                .Cambia(tabella, numero, "Sconto", Testo_O_Null(p.sconto))
                .Cambia(tabella, numero, "Collegati", Testo_O_Null(p.collegati));
        c.Cambia("Componenti", numero, "Confezione", std::nullopt);
    }
    c.Parte("P_1", "40", "A", "A", {{"Campo03", "10"}}).Parte("P_1", "40", "B", "B", {{"Campo03", "2.5"}});
    c.Parte("P_2", "1", "A", "A", {{"Campo03", "10"}});
    c.Parte("P_1", "W", "W", "W", {{"Tipo_Associazione", "1"}, {"Campo03", "3"}});
    c.Riga("Componenti", {{"Campo01", "SOLO"}, {"Campo03", "6"}, {"Confezione", "3"}});
    for (const char* tabella : {"Componenti", "Componenti_Web"})
        for (const char* colonna : {"Listino", "Sconto_2"})
            c.Cambia(tabella, 1, colonna, std::nullopt);
    if (variante == Variante::Due_Prezzi) {
        const auto riga = [&c](const char* rif, const char* codice, Valore_Prova listino, const char* sconto,
                               const char* sconto_2) {
            c.Parte("P_2", rif, codice, codice,
                    {{"Campo03", "100"}, {"Listino", listino}, {"Sconto", sconto}, {"Sconto_2", sconto_2}});
        };
        riga("2", "H", "80", "/D10/", "/D5/");
        riga("3", "H0", "80.5", "/D10/", "/NULLA/");
        riga("4", "HN", std::nullopt, "/D10/", "/D5/");
    }

    const struct {
        const char *chiave, *tipo, *generale, *quantita, *totale;
    } sconti[] = {{"D10", "I", "1/10|2/20", "", ""},     {"D5", "I", "1/5", "", ""},
                  {"D100", "I", "1/100", "", ""},        {"QTA", "I", "", "1/5/10/49", ""},
                  {"QTA", "I", "", "1/8/50/99", ""},     {"TOT", "I", "1/0", "", "1/10/200/400"},
                  {"FINE", "F", "1/10", "", ""},         {"FINE", "I", "1/20", "", ""},
                  {"TUTTI", "I", "1/10", "", ""},        {"TUTTI", "I", "1/20", "", ""},
                  {"ALTRO", "I", "2/10|3/20", "", ""},   {"GUASTO", "I", "1/dieci", "", ""},
                  {"DUE", "I", "x|/|1/10|1/20", "", ""}, {"MISTO", "I", "1/10", "1/5/1/99", "1/2/1/9999"}};
    int ordine = 0;
    for (const auto& s : sconti)
        c.Riga("Sconti", {{"Key_Sconto", s.chiave},
                          {"Ordine", QString::number(++ordine)},
                          {"Tipo_Sconto", s.tipo},
                          {"Sconto_Generale", Testo_O_Null(s.generale)},
                          {"Sconto_Qta", Testo_O_Null(s.quantita)},
                          {"Sconto_Totale", Testo_O_Null(s.totale)}});
    c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "G5"}, {"Ordine", "1"}, {"Key_Sconto", "/D5/"}});
    c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "G10"}, {"Ordine", "2"}, {"Key_Sconto", "/D10/"}});
    c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "GN"}, {"Ordine", "3"}});
    const char* utenti[][3] = {{"dieci", "", "/D10/"},     {"gruppo", "/G5/", nullptr},
                               {"gruppi", "/G10/G5/", ""}, {"proprio", "/G5/", "/D10/"},
                               {"cento", "", "/D100/"},    {"quanti", "", "/QTA/"},
                               {"totale", "", "/TOT/"},    {"nessuno", "/GN/", nullptr}};
    for (const auto& [login, gruppi, chiavi] : utenti)
        c.Riga("Anagrafico", {{"Identificativo", login},
                              {"Login", login},
                              {"Utente_Tipo", "/1/0/0/"},
                              {"Key_Gruppo", gruppi},
                              {"Key_Sconto", chiavi ? Valore_Prova(chiavi) : std::nullopt}});
    return c;
}
