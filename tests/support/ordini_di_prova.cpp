#include "support/ordini_di_prova.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

#include "core/base/testo.h"
#include "core/cart/modifica.h"

QByteArray Passo_Ordine::Riga() const {
    QJsonObject campi{{"product", prodotto}};
    QString nome;
    switch (genere) {
        case Aggiungi:
            nome = "add";
            campi["code"] = a;
            campi["reference"] = b;
            break;
        case Oggetto:
            nome = "hotspot";
            campi["name"] = a;
            if (!b.isEmpty())
                campi["code"] = b;
            break;
        case Quantita:
        case Nota:
            nome = genere == Nota ? "note" : "quantity";
            campi["line"] = a;
            campi["text"] = b;
            break;
        case Togli:
            nome = "remove";
            campi["line"] = a;
            break;
    }
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

struct Parte_Di_Prova {
    const char* codice;
    const char* prezzo;     // nullptr: none
    const char* passo;      // Quantita_min
    const char* sconto;     // keys
    const char* collegati;  // linked codes
    const char* riferimento;
};

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
    const Parte_Di_Prova parti[] = {
        {"A", "10", nullptr, nullptr, nullptr, "1"},
        {"B", "2.5", "5", nullptr, nullptr, "2"},
        {"C", "0.335", nullptr, nullptr, nullptr, "3"},
        {"D", "100", nullptr, "/D10/", nullptr, "4"},
        {"E", "100", "5", "/QTA/", nullptr, "5"},
        {"F", "100", "2", "/TOT/", nullptr, "6"},
        {"G", "100", nullptr, "/D10/D5/", nullptr, "7"},
        {"S", "4", "2.5", nullptr, nullptr, "8"},
        {"S3", "4", "3,5", nullptr, nullptr, "9"},
        {"Z", "4", "0", nullptr, nullptr, "10"},
        {"V", "12,50", nullptr, nullptr, nullptr, "11"},
        {"R", "a richiesta", nullptr, nullptr, nullptr, "12"},
        {"N", nullptr, nullptr, nullptr, nullptr, "13"},
        {"GRANDE", "16777216", nullptr, nullptr, nullptr, "14"},
        {"UNO", "1", nullptr, nullptr, nullptr, "15"},
        {"O'R", "1", nullptr, nullptr, nullptr, "16"},
        {"CENTO", "100", nullptr, "/D100/", nullptr, "17"},
        {"CENTO10", "100", nullptr, "/D100/D10/", nullptr, "18"},
        {"FINE", "100", nullptr, "/FINE/", nullptr, "19"},
        {"TUTTI", "100", nullptr, "/TUTTI/", nullptr, "20"},
        {"ALTRO", "100", nullptr, "/ALTRO/", nullptr, "21"},
        {"GUASTO", "100", nullptr, "/D10/GUASTO/D5/", nullptr, "22"},
        {"DUE", "100", nullptr, "/DUE/", nullptr, "23"},
        {"MISTO", "100", "10", "/MISTO/", nullptr, "24"},
        {"ENORME", "1", "40000", nullptr, nullptr, "25"},
        {"KIT", "50", nullptr, nullptr, "L§2/M§0.5", "30"},
        {"L", "3", nullptr, nullptr, "P§4", "31"},
        {"M", "7.7", nullptr, nullptr, nullptr, "32"},
        {"P", "1.1", nullptr, nullptr, "KIT§1", "33"},
        {"SE", "5", nullptr, nullptr, "SE§2/A§1", "34"},
        {"SCONTATO", "1", nullptr, nullptr, "D§2", "35"},
        {"IGNOTO", "9", nullptr, nullptr, "NESSUNO§3", "36"},
        {"NUDO", "1", nullptr, nullptr, " A / M § 3 ", "37"},
    };
    for (const Parte_Di_Prova& p : parti) {
        const auto valore = [](const char* testo) { return testo ? Valore_Prova(testo) : std::nullopt; };
        c.Parte("P_1", p.riferimento, p.codice, p.codice,
                {{"Campo03", valore(p.prezzo)},
                 {"Quantita_min", valore(p.passo)},
                 {"Sconto", valore(p.sconto)},
                 {"Collegati", valore(p.collegati)}});
        // The master has the same data.
        const int riga = static_cast<int>(&p - parti) + 1;
        c.Cambia("Componenti", riga, "Campo03", valore(p.prezzo));
        c.Cambia("Componenti", riga, "Sconto", valore(p.sconto));
        c.Cambia("Componenti", riga, "Collegati", valore(p.collegati));
        c.Cambia("Componenti", riga, "Confezione", std::nullopt);
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

    struct Sconto_Di_Prova {
        const char *chiave, *tipo, *generale, *quantita, *totale;
    };
    const Sconto_Di_Prova sconti[] = {
        {"D10", "I", "1/10|2/20", nullptr, nullptr},     {"D5", "I", "1/5", nullptr, nullptr},
        {"D100", "I", "1/100", nullptr, nullptr},        {"QTA", "I", nullptr, "1/5/10/49", nullptr},
        {"QTA", "I", nullptr, "1/8/50/99", nullptr},     {"TOT", "I", "1/0", nullptr, "1/10/200/400"},
        {"FINE", "F", "1/10", nullptr, nullptr},         {"FINE", "I", "1/20", nullptr, nullptr},
        {"TUTTI", "I", "1/10", nullptr, nullptr},        {"TUTTI", "I", "1/20", nullptr, nullptr},
        {"ALTRO", "I", "2/10|3/20", nullptr, nullptr},   {"GUASTO", "I", "1/dieci", nullptr, nullptr},
        {"DUE", "I", "x|/|1/10|1/20", nullptr, nullptr}, {"MISTO", "I", "1/10", "1/5/1/99", "1/2/1/9999"},
    };
    int ordine = 0;
    for (const Sconto_Di_Prova& s : sconti) {
        const auto valore = [](const char* testo) { return testo ? Valore_Prova(testo) : std::nullopt; };
        c.Riga("Sconti", {{"Key_Sconto", s.chiave},
                          {"Ordine", QString::number(++ordine)},
                          {"Tipo_Sconto", s.tipo},
                          {"Sconto_Generale", valore(s.generale)},
                          {"Sconto_Qta", valore(s.quantita)},
                          {"Sconto_Totale", valore(s.totale)}});
    }
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
