#pragma once
// A window and a text database for the tests of the text catalogue.

#include "../catalogue_db/database_di_prova.h"
#include "core/localisation/collection_traduzioni.h"

/// What stands on a control; the window keeps it, the controls that it hands out only refer to it.
struct Stato_Oggetto {
    QString tipo, nome, testo = "designed", suggerimento = "designed tip";
    std::optional<int> indice = {};
    QStringList parti = {};
    bool rifiuta = false;
};

class Oggetto_Finto : public Oggetto_Form {
  public:
    explicit Oggetto_Finto(Stato_Oggetto& stato) : stato_(stato) {}
    QString Tipo() const override { return stato_.tipo; }
    QString Nome() const override { return stato_.nome; }
    std::optional<int> Indice() const override { return stato_.indice; }
    QString Testo() const override { return stato_.testo; }
    void Imposta_Testo(const QString& testo) override {
        if (stato_.rifiuta)
            throw std::runtime_error("no caption");
        stato_.testo = testo;
    }
    QString Suggerimento() const override { return stato_.suggerimento; }
    void Imposta_Suggerimento(const QString& testo) override { stato_.suggerimento = testo; }
    int Parti() const override { return static_cast<int>(stato_.parti.size()); }
    QString Parte(int i) const override { return stato_.parti.at(i - 1); }
    void Imposta_Parte(int i, const QString& testo) override { stato_.parti[i - 1] = testo; }

  private:
    Stato_Oggetto& stato_;
};

class Finestra_Finta : public Finestra_Testi {
  public:
    QString Nome() const override { return "Form_Prova"; }
    QString Titolo() const override { return titolo; }
    void Imposta_Titolo(const QString& nuovo) override { titolo = nuovo; }
    std::vector<std::unique_ptr<Oggetto_Form>> Oggetti() override {
        std::vector<std::unique_ptr<Oggetto_Form>> tutti;
        for (Stato_Oggetto& stato : oggetti)
            tutti.push_back(std::make_unique<Oggetto_Finto>(stato));
        return tutti;
    }

    QString titolo = "designed title";
    std::vector<Stato_Oggetto> oggetti;
};

/// The text catalogue over a protected database with the two text tables, languages 1 and 2, open for
/// writing.
class Testi : public testing::Test {
  protected:
    Testi() {
        database.Apri(percorso, QString(), Database::Modo::Scrittura);
        for (const QString& istruzione :
             Tabella("Traduzioni_Viewer_System",
                     "Form Name_Object Index Tipo Traduzione_1 Traduzione_2 Traduzione_Tooltiptext_1 "
                     "Traduzione_Tooltiptext_2") +
                 Tabella("Oggetti_Form", "Form Name_Object Index Traduzione_1 Traduzione_Tooltiptext_1") +
                 Istruzioni_Protezione(PASSWORD_DB))
            database.Esegui(istruzione);
        testi.Apri_Database_Traduzioni(percorso, Database::Modo::Scrittura);
    }
    /// Rows with texts of language 2: SQL of form, object, index, text and tool tip.
    void Righe(const QString& valori) {
        database.Esegui(
            "INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, [Index], Traduzione_2,"
            " Traduzione_Tooltiptext_2) VALUES " +
            valori);
    }

    QTemporaryDir cartella;
    QString percorso = cartella.filePath("testi.qld");
    Database database;
    Messaggi_Finti messaggi;
    Collection_Traduzioni testi{messaggi};
    Finestra_Finta finestra;
};
