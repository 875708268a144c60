#include "support/catalogo_di_prova.h"

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>

#include "core/archivio/archivio_in_scrittura.h"
#include "core/catalogue_db/creazione_database.h"
#include "core/catalogue_db/schema.h"

Catalogo_Di_Prova::Catalogo_Di_Prova() {
    for (const Tabella_Nota& tabella : Tabelle_Note())
        tabelle_.push_back({tabella.Nome, Colonne_Note(tabella.Nome), {}});
    Sistema("VERSIONE", "4.3").Sistema("LINGUA_START", "Italiano").Sistema("MERCATO_START", "Italia");
    const auto righe = [this](const QString& tabella, const QString& colonne, const QStringList& valori) {
        const QStringList nomi = colonne.split(' ');
        for (const QString& riga : valori) {
            Campi campi;
            for (qsizetype i = 0; i < nomi.size(); ++i)
                campi.emplace_back(nomi[i], riga.split('|')[i]);
            Riga(tabella, campi);
        }
    };
    righe("Lingue", "ID Chiave Descrizione_Lingua Descrizione_Mercato Attiva_Lingua Attiva_Mercato",
          {"1|IT|Italiano|Italia|TRUE|TRUE", "2|UK|English|United Kingdom|TRUE|TRUE",
           "3|FR|Français|France|TRUE|TRUE"});
    righe("Albero", "Key_Prodotto Descrizione_Nodo Tipo_Prodotto", {"R|Prova|RADICE"});
    righe("Traduzioni_Albero",
          "Descrizione_Nodo Key_Testo_Visualizzato Traduzione_1 Traduzione_2 Traduzione_3",
          {"Prova|Prova|Prova|Trial|Essai"});
    Nodo("R", "", "Prova");
    righe("Struttura_Componenti",
          "Nome_Colonna_Tabella Titolo_Colonna Traduzione_1 Traduzione_2 Traduzione_3 Visualizzato Ordine "
          "Indice_Primario Tipo_Colonna Size",
          {"Campo01|Codice|Codice|Code|Référence|Yes|1|Yes|String [255 car.]|15",
           "Campo02|Descrizione|Descrizione|Description|Désignation|Yes|2|No|Text [255 car.]|40",
           "Campo03|Prezzo|Prezzo|Price|Prix|Yes|3|No|Price|2"});
    for (const char* tabella : {"Componenti", "Componenti_Web"})
        Trova_O_Crea(tabella).Colonne += {"Campo01", "Campo02", "Campo03"};
    righe("Traduzioni_Viewer_System", "Form Name_Object Tipo Traduzione_1 Traduzione_2 Traduzione_3",
          {"DESCRIZIONE|QUANTITA|DESCRIZIONE|Quantità|Quantity|Quantité",
           "DESCRIZIONE|Note|DESCRIZIONE|Note|Notes|Notes"});
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
