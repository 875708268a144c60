#include "support/catalogo_di_prova.h"

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>

#include "core/archivio/archivio.h"
#include "core/catalogue_db/creazione.h"
#include "core/catalogue_db/schema.h"

Catalogo_Di_Prova::Catalogo_Di_Prova() {
    for (const Tabella_Nota& tabella : Tabelle_Note())
        tabelle_.push_back({tabella.Nome, Colonne_Note(tabella.Nome), {}});
    Sistema("VERSIONE", "4.3").Sistema("LINGUA_START", "Italiano").Sistema("MERCATO_START", "Italia");
    const char* lingue[][4] = {{"1", "IT", "Italiano", "Italia"},
                               {"2", "UK", "English", "United Kingdom"},
                               {"3", "FR", "Français", "France"}};
    for (const auto& [id, chiave, lingua, mercato] : lingue)
        Riga("Lingue", {{"ID", id},
                        {"Chiave", chiave},
                        {"Descrizione_Lingua", lingua},
                        {"Descrizione_Mercato", mercato},
                        {"Attiva_Lingua", "TRUE"},
                        {"Attiva_Mercato", "TRUE"}});
    Riga("Albero", {{"Key_Prodotto", "R"}, {"Descrizione_Nodo", "Prova"}, {"Tipo_Prodotto", "RADICE"}});
    Riga("Traduzioni_Albero", {{"Descrizione_Nodo", "Prova"},
                               {"Key_Testo_Visualizzato", "Prova"},
                               {"Traduzione_1", "Prova"},
                               {"Traduzione_2", "Trial"},
                               {"Traduzione_3", "Essai"}});
    Nodo("R", "", "Prova");

    const char* colonne[][6] = {
        {"Campo01", "Codice", "Code", "Référence", "String [255 car.]", "15"},
        {"Campo02", "Descrizione", "Description", "Désignation", "Text [255 car.]", "40"},
        {"Campo03", "Prezzo", "Price", "Prix", "Price", "2"}};
    int ordine = 0;
    for (const auto& [nome, it, uk, fr, tipo, size] : colonne)
        Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", nome},
                                      {"Titolo_Colonna", it},
                                      {"Traduzione_1", it},
                                      {"Traduzione_2", uk},
                                      {"Traduzione_3", fr},
                                      {"Visualizzato", "Yes"},
                                      {"Ordine", QString::number(++ordine)},
                                      {"Indice_Primario", ordine == 1 ? "Yes" : "No"},
                                      {"Tipo_Colonna", tipo},
                                      {"Size", size}});
    for (const char* tabella : {"Componenti", "Componenti_Web"})
        Trova_O_Crea(tabella).Colonne += {"Campo01", "Campo02", "Campo03"};

    const char* testi[][4] = {{"QUANTITA", "Quantità", "Quantity", "Quantité"},
                              {"Note", "Note", "Notes", "Notes"}};
    for (const auto& [chiave, it, uk, fr] : testi)
        Riga("Traduzioni_Viewer_System", {{"Form", "DESCRIZIONE"},
                                          {"Name_Object", chiave},
                                          {"Tipo", "DESCRIZIONE"},
                                          {"Traduzione_1", it},
                                          {"Traduzione_2", uk},
                                          {"Traduzione_3", fr}});
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Riga(const QString& tabella, const Campi& campi) {
    Tabella_Prova& t = Trova_O_Crea(tabella);
    std::vector<Valore_Prova> riga(static_cast<size_t>(t.Colonne.size()));
    for (const auto& [colonna, valore] : campi)
        Imposta(t, riga, colonna, valore);
    t.Righe.push_back(std::move(riga));
    return *this;
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Cambia(const QString& tabella, int riga, const QString& colonna,
                                             const Valore_Prova& valore) {
    Tabella_Prova& t = Trova_O_Crea(tabella);
    Imposta(t, t.Righe.at(static_cast<size_t>(riga - 1)), colonna, valore);
    return *this;
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Sistema(const QString& chiave, const Valore_Prova& valore) {
    for (auto& riga : Trova_O_Crea("SYSTEM").Righe)
        if (riga[0] == chiave) {
            riga[1] = valore;
            return *this;
        }
    return Riga("SYSTEM", {{"KEY", chiave}, {"VALORE", valore}});
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Nodo(const QString& chiave, const QString& padre,
                                           const Valore_Prova& testo, const Campi& altri) {
    Tabella_Prova& t = Trova_O_Crea("Albero_Web");
    const auto colonna = [&](const char* nome) { return static_cast<size_t>(t.Colonne.indexOf(nome)); };
    int profondita = 0;
    for (const auto& riga : t.Righe)
        if (riga[colonna("Key_Prodotto")] == padre)
            profondita = riga[colonna("Profondita_Nodo")].value_or("0").toInt() + 1;
    Campi campi{{"Key_Prodotto", chiave},
                {"Key_Padre", padre},
                {"Ordine", QString::number(t.Righe.size())},
                {"Profondita_Nodo", QString::number(profondita)},
                {"Testo_Visualizzato_1", testo},
                {"Testo_Visualizzato_2", testo},
                {"Testo_Visualizzato_3", testo}};
    campi.insert(campi.end(), altri.begin(), altri.end());
    return Riga("Albero_Web", campi);
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Prodotto(const QString& chiave, const QString& padre,
                                               const QString& testo, const Campi& altri) {
    Nodo(chiave, padre, testo, altri);
    return Riga("Prodotti", {{"Key_Prodotto", chiave}, {"Codice", chiave.mid(2)}});
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Parte(const QString& prodotto, const QString& riferimento,
                                            const QString& codice, const QString& descrizione,
                                            const Campi& altri) {
    const Tabella_Prova& componenti = Trova_O_Crea("Componenti");
    if (std::ranges::none_of(componenti.Righe, [&](const auto& riga) { return riga[0] == codice; }))
        Riga("Componenti", {{"Campo01", codice}, {"Campo02", descrizione}});
    Campi campi{{"Ordine", QString::number(Trova_O_Crea("Componenti_Web").Righe.size() + 1)},
                {"Key_Prodotto", prodotto},
                {"Key_Riferimento", riferimento},
                {"Codice_Componente", codice},
                {"Tipo_Associazione", "2"},
                {"Campo01", codice},
                {"Campo02", descrizione}};
    campi.insert(campi.end(), altri.begin(), altri.end());
    return Riga("Componenti_Web", campi);
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Rimuovi_Tabella(const QString& nome) {
    if (std::erase_if(tabelle_, [&](const Tabella_Prova& t) { return t.Nome == nome; }) == 0)
        throw std::runtime_error("no table " + nome.toStdString());
    return *this;
}

Catalogo_Di_Prova& Catalogo_Di_Prova::Rimuovi_Colonna(const QString& tabella, const QString& colonna) {
    Tabella_Prova& t = Trova_O_Crea(tabella);
    const qsizetype i = t.Colonne.indexOf(colonna);
    if (i < 0)
        throw std::runtime_error("no column " + colonna.toStdString());
    t.Colonne.removeAt(i);
    for (auto& riga : t.Righe)
        riga.erase(riga.begin() + i);
    return *this;
}

Catalogo_Di_Prova& Catalogo_Di_Prova::File(const QString& voce, const QByteArray& contenuto) {
    std::erase_if(file_, [&](const auto& f) { return f.first == voce; });
    file_.emplace_back(voce, contenuto);
    return *this;
}

QString Catalogo_Di_Prova::Pacchetto(const QString& cartella, const QString& nome) const {
    const QString percorso = QDir(cartella).filePath(nome);
    const QTemporaryDir appoggio;
    Archivio_In_Scrittura archivio(percorso);
    if (!voce_database_.isEmpty())
        archivio.Aggiungi_File(voce_database_, Database(appoggio.path()));
    for (const auto& [voce, contenuto] : file_)
        archivio.Aggiungi(voce, contenuto);
    if (const QString errore = archivio.Termina(); !errore.isEmpty())
        throw std::runtime_error(errore.toStdString());
    return percorso;
}

QString Catalogo_Di_Prova::Database(const QString& cartella, const QString& nome) const {
    const QString percorso = QDir(cartella).filePath(nome);
    Creazione_Database database(percorso);
    for (const Tabella_Prova& t : tabelle_) {
        if (t.Colonne.isEmpty())
            continue;
        std::vector<Definizione_Colonna> colonne;
        for (const QString& colonna : t.Colonne)
            colonne.push_back(Definizione_Nota(t.Nome, colonna));
        Statement aggiungi = database.Tabella(t.Nome, colonne);
        for (const auto& riga : t.Righe) {
            std::vector<Valore> valori;
            for (const Valore_Prova& valore : riga)
                valori.push_back(valore ? Valore(*valore) : Valore());
            aggiungi.Esegui(valori);
        }
    }
    database.Termina();
    return percorso;
}

Tabella_Prova& Catalogo_Di_Prova::Trova_O_Crea(const QString& nome) {
    for (Tabella_Prova& t : tabelle_)
        if (t.Nome == nome)
            return t;
    return tabelle_.emplace_back(Tabella_Prova{nome, {}, {}});
}

void Catalogo_Di_Prova::Imposta(Tabella_Prova& tabella, std::vector<Valore_Prova>& riga,
                                const QString& colonna, const Valore_Prova& valore) {
    qsizetype i = tabella.Colonne.indexOf(colonna);
    if (i < 0) {
        i = tabella.Colonne.size();
        tabella.Colonne << colonna;
        // `riga` may be one of these, or a row that isn't in the table yet.
        for (auto& altra : tabella.Righe)
            altra.resize(static_cast<size_t>(tabella.Colonne.size()));
        riga.resize(static_cast<size_t>(tabella.Colonne.size()));
    }
    riga[static_cast<size_t>(i)] = valore;
}
