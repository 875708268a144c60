#include "support/ordini_di_prova.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <stdexcept>

#include "core/base/testo.h"
#include "core/cart/modifica.h"
#include "tzf/tables/csv.h"

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
                carrello.Aggiungi_Da_Tavola(a, prodotto, Key_Da_Nodo(a), [&](const QString& riferimento) {
                    return b.isEmpty() ? std::nullopt : std::optional(Componente_Scelto{b, riferimento});
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

QStringList Righe_Ordine(const Griglia& griglia, const Tag_Griglia& tag) {
    QStringList righe;
    for (int r = 1; griglia.Visible && r < griglia.Rows(); ++r) {
        QStringList celle, tag_riga;
        int note = 0;
        for (int c = 0; c < griglia.Cols(); ++c) {
            celle += griglia.TextMatrix(r, c);
            tag_riga += tag.At(r, c);
            if (tag_riga.last().startsWith(u"Note|"))
                note = c;
        }
        righe += Riga_Ordine(celle, tag_riga, note);
    }
    return righe;
}

namespace {

using Campi = Catalogo_Di_Prova::Campi;

/// The rows of a table in the folder of the worked orders.
std::vector<Campi> Righe_Di(const QString& tabella) {
    CsvReader csv(QString(WORKED_ORDERS "/%1.csv").arg(tabella));
    std::vector<Campi> righe;
    for (std::vector<CsvField> campi; csv.next(campi);) {
        Campi& riga = righe.emplace_back();
        for (size_t i = 0; i < campi.size(); ++i)
            riga.emplace_back(csv.header()[i],
                              campi[i].null ? Valore_Prova() : QString::fromUtf8(campi[i].text));
    }
    return righe;
}

/// Place of a name in a list that has to hold it.
int Indice(const QStringList& nomi, const QString& nome) {
    const auto i = nomi.indexOf(nome);
    if (i < 0)
        throw std::runtime_error("orders.txt: unknown word " + nome.toStdString());
    return static_cast<int>(i);
}

}  // namespace

Catalogo_Di_Prova Catalogo_Ordini(Variante variante) {
    Catalogo_Di_Prova c;
    c.Svuota_Tabella("Struttura_Componenti");
    for (const Campi& riga : Righe_Di("Struttura_Componenti")) {
        const QString colonna = *riga[0].second;
        const bool seconda = colonna == "Listino" || colonna == "Sconto_2";
        if (seconda ? variante == Variante::Due_Prezzi
                    : colonna != "Campo03" || variante != Variante::Senza_Prezzi)
            c.Riga("Struttura_Componenti", riga);
    }
    if (variante == Variante::Obbligata)
        c.Sistema("IMPOSTAZIONE_RICHIEDI_QUANTITA_MINIMA", "SI");
    if (variante == Variante::Sconto_Base)
        c.Sistema("GRUPPI_SCONTO_START", "/D10/");
    for (const char* tabella : {"Traduzioni_Viewer_System", "Sconti", "Gruppi_Utenti", "Anagrafico"})
        for (const Campi& riga : Righe_Di(tabella))
            c.Riga(tabella, riga);

    c.Prodotto("P_1", "R", "Uno").Prodotto("P_2", "R", "Due");
    QStringList codici;
    for (const Campi& riga : Righe_Di("parts")) {
        const QString codice = *riga[2].second;
        // The master has the same data, but for the step.
        Campi componente{{"Campo01", codice}, {"Confezione", std::nullopt}};
        componente.insert(componente.end(), riga.begin() + 4, riga.end());
        if (!codici.contains(codice))
            c.Riga("Componenti", componente);
        codici += codice;
        c.Parte(*riga[0].second, *riga[1].second, codice, codice, {riga.begin() + 3, riga.end()});
    }
    c.Parte("P_1", "W", "W", "W", {{"Tipo_Associazione", "1"}, {"Campo03", "3"}});
    return c.Riga("Componenti", {{"Campo01", "SOLO"}, {"Campo03", "6"}, {"Confezione", "3"}});
}

std::vector<Ordine_Di_Prova> Ordini_Di_Prova() {
    static const QStringList passi{"add", "hotspot", "quantity", "note", "remove"};
    static const QStringList varianti{"Libera", "Obbligata", "Sconto_Base", "Due_Prezzi", "Senza_Prezzi"};
    QFile file(WORKED_ORDERS "/orders.txt");
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("can't read orders.txt");
    std::vector<Ordine_Di_Prova> ordini;
    for (const QString& riga : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList campi = riga.split('|');
        const QString& parola = campi[0];
        if (riga.isEmpty() || riga.startsWith('#'))
            continue;
        if (parola == "order") {
            ordini.emplace_back().nome = campi.at(1).toStdString();
            continue;
        }
        Ordine_Di_Prova& ordine = ordini.at(ordini.size() - 1);
        if (parola.startsWith('>'))
            ordine.righe += riga.mid(2);
        else if (parola == "catalogue")
            ordine.variante = static_cast<Variante>(Indice(varianti, campi.at(1)));
        else if (parola == "user")
            ordine.login = campi.at(1);
        else if (parola == "message")
            ordine.messaggi += campi.at(1);
        else
            ordine.passi.push_back({static_cast<Passo_Ordine::Genere>(Indice(passi, parola)), campi.at(1),
                                    campi.at(2), campi.value(3)});
    }
    return ordini;
}
