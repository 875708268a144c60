#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <utility>
#include <vector>

/// A value of a row: a text, or NULL (`std::nullopt`).
using Valore_Prova = std::optional<QString>;

struct Tabella_Prova {
    QString Nome;
    QStringList Colonne;
    std::vector<std::vector<Valore_Prova>> Righe;  ///< each with a value for each column
};

/// A small catalogue made in test code and packed as a publisher's is. A new one opens as it stands: version
/// 4.3, three languages that are markets too (1 Italian, 2 English, 3 French), all tables, the root node, a
/// column model of code (`Campo01`), description (`Campo02`) and price (`Campo03`), a few coded texts, and no
/// products.
class Catalogo_Di_Prova {
  public:
    using Campi = std::vector<std::pair<QString, Valore_Prova>>;

    Catalogo_Di_Prova();

    // Rows. Columns that aren't given are NULL; a column or table that isn't there yet is made.
    Catalogo_Di_Prova& Riga(const QString& tabella, const Campi& campi);
    /// Changes a value of a row that is there, counted from 1.
    Catalogo_Di_Prova& Cambia(const QString& tabella, int riga, const QString& colonna,
                              const Valore_Prova& valore);
    /// A `SYSTEM` value; a key that is there already gets the new value.
    Catalogo_Di_Prova& Sistema(const QString& chiave, const Valore_Prova& valore);
    /// A node of `Albero_Web` with one caption in all languages; depth and order follow from the parent and
    /// from the calls.
    Catalogo_Di_Prova& Nodo(const QString& chiave, const QString& padre, const Valore_Prova& testo,
                            const Campi& altri = {});
    /// A node with its row in `Prodotti`.
    Catalogo_Di_Prova& Prodotto(const QString& chiave, const QString& padre, const QString& testo,
                                const Campi& altri = {});
    /// A part in `Componenti` and a row for it in `Componenti_Web`, with its reference, kind 2.
    Catalogo_Di_Prova& Parte(const QString& prodotto, const QString& riferimento, const QString& codice,
                             const QString& descrizione, const Campi& altri = {});

    // The structure.
    /// Replaces a table by another one; its columns are texts unless the catalogues declare them otherwise.
    Catalogo_Di_Prova& Tabella(const QString& nome, const QStringList& colonne,
                               const std::vector<std::vector<Valore_Prova>>& righe = {}) {
        Trova_O_Crea(nome) = {nome, colonne, righe};
        return *this;
    }
    Catalogo_Di_Prova& Svuota_Tabella(const QString& nome) {
        Trova_O_Crea(nome).Righe.clear();
        return *this;
    }
    Catalogo_Di_Prova& Rimuovi_Tabella(const QString& nome);
    Catalogo_Di_Prova& Rimuovi_Colonna(const QString& tabella, const QString& colonna);

    /// A file of the package; a later one of the same name replaces it.
    Catalogo_Di_Prova& File(const QString& voce, const QByteArray& contenuto);
    /// Name of the database's entry; "" leaves the database out.
    Catalogo_Di_Prova& Voce_Database(const QString& voce) {
        voce_database_ = voce;
        return *this;
    }

    /// Writes the package into a folder and answers its path.
    QString Pacchetto(const QString& cartella, const QString& nome = QStringLiteral("prova.TZF")) const;
    /// Writes the database alone and answers its path.
    QString Database(const QString& cartella,
                     const QString& nome = QStringLiteral("tzd_qlfrml_cod.tzf")) const;

    const std::vector<Tabella_Prova>& Tabelle() const { return tabelle_; }
    const std::vector<std::pair<QString, QByteArray>>& File() const { return file_; }

  private:
    Tabella_Prova& Trova_O_Crea(const QString& nome);
    static void Imposta(Tabella_Prova& tabella, std::vector<Valore_Prova>& riga, const QString& colonna,
                        const Valore_Prova& valore);

    std::vector<Tabella_Prova> tabelle_;
    std::vector<std::pair<QString, QByteArray>> file_;
    QString voce_database_ = QStringLiteral("tzd_qlfrml_cod.tzf");
};
