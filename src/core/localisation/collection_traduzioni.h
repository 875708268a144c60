#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "core/base/collezione.h"
#include "core/base/porte.h"
#include "core/catalogue_db/engine/database.h"

/// One coded text.
struct Class_Traduzioni {
    QString Key;
    QString Testo;
};

/// An item of a window (a label, a button, ...), as the text catalogue sees it. The window's toolkit stands
/// behind it.
class Oggetto_Form {
  public:
    virtual ~Oggetto_Form() = default;
    /// `Label`, `CommandButton`, `Toolbar`, ...; a type that isn't in the catalogue's list is skipped.
    virtual QString Tipo() const = 0;
    virtual QString Nome() const = 0;
    /// Index in a control array; none for a control that is no member of one.
    virtual std::optional<int> Indice() const = 0;
    virtual QString Testo() const = 0;
    virtual void Imposta_Testo(const QString& testo) = 0;
    virtual QString Suggerimento() const = 0;
    virtual void Imposta_Suggerimento(const QString& testo) = 0;
    /// Buttons of a toolbar, tabs, column headers: their number, and their texts by position from 1.
    virtual int Parti() const = 0;
    virtual QString Parte(int i) const = 0;
    virtual void Imposta_Parte(int i, const QString& testo) = 0;
};

/// A window, as the text catalogue sees it.
class Finestra_Testi {
  public:
    virtual ~Finestra_Testi() = default;
    virtual QString Nome() const = 0;
    virtual QString Titolo() const = 0;
    virtual void Imposta_Titolo(const QString& titolo) = 0;
    virtual std::vector<std::unique_ptr<Oggetto_Form>> Oggetti() = 0;
};

/// The text catalogue: coded texts by key, and the texts of the windows' controls, from
/// `Traduzioni_Viewer_System`.
class Collection_Traduzioni {
  public:
    explicit Collection_Traduzioni(Messaggi& messaggi) : messaggi_(messaggi) {}

    /// Opens the text source; fails with `Errore_DB`. `modo` is `Scrittura` for an extraction only.
    bool Apri_Database_Traduzioni(const QString& percorso, Database::Modo modo = Database::Modo::Lettura);
    /// Reloads the coded texts for a language number; "" leaves the list empty. Fails with `Errore_DB`; then
    /// the texts stay as they were.
    void Carica_Testi_Codificati(const QString& lingua);
    bool Chiudi_Database_Traduzioni();
    /// Never fails: a key that isn't there gives its second "/" field, or itself without one, as `Testo`.
    Class_Traduzioni Item(const QString& key) const;
    qsizetype Count() const { return testi_.Count(); }
    /// Applies the texts to a window; what can't be applied stays as it was.
    void Carica_Testi_Form(Finestra_Testi& finestra, const QString& lingua) const;
    QString Nome_Data_DB_Supporto() const;
    /// The text of a key; "" when there is none.
    QString Restituisci_Testo(const QString& key) const;
    /// Reverse lookup: the second "/" field of the first key that holds "/" + suffix and has this text; else
    /// the text.
    QString Restituisci_Key(const QString& suffisso, const QString& testo) const;
    bool Esiste_Key(const QString& key) const;
    /// Writes the texts found on a window into `Oggetti_Form`, after a question. Fails with `Errore_DB`.
    void Estrapola_Oggetti_Form(Finestra_Testi& finestra) const;
    /// Language 1's base texts under "#TR#" + key, beside what is loaded. Kept: nothing calls it.
    void Carica_Testi_Base();

  private:
    using Colonne = std::vector<std::pair<QString, QString>>;  ///< names and texts

    Class_Traduzioni& Crea_Voce_Traduzione(const QString& key);
    void Carica_Righe(const QString& sql, const QString& prefisso);
    void Scrivi_Estratto(const QString& finestra, const QString& oggetto, const QString& indice,
                         const Colonne& colonne) const;

    Messaggi& messaggi_;
    Database database_;
    Collezione<Class_Traduzioni> testi_;
};
