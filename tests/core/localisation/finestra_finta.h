#pragma once
// A window and a text database for the tests of the text catalogue.

#include <QFile>
#include <QTemporaryDir>
#include <stdexcept>

#include "core/catalogue_db/engine/protezione.h"
#include "core/localisation/collection_traduzioni.h"

/// What stands on a control; the window keeps it, the controls that it hands out only refer to it.
struct Stato_Controllo {
    QString tipo;
    QString nome;
    std::optional<int> indice = {};
    QString testo = {};
    QString suggerimento = {};
    QStringList parti = {};
    bool rifiuta_testo = false;
    bool rifiuta_suggerimento = false;
};

class Controllo_Finto : public Controllo {
  public:
    explicit Controllo_Finto(Stato_Controllo& stato) : stato_(stato) {}
    QString Tipo() const override { return stato_.tipo; }
    QString Nome() const override { return stato_.nome; }
    std::optional<int> Indice() const override { return stato_.indice; }
    QString Testo() const override { return stato_.testo; }
    void Imposta_Testo(const QString& testo) override {
        if (stato_.rifiuta_testo)
            throw std::runtime_error("no caption");
        stato_.testo = testo;
    }
    QString Suggerimento() const override { return stato_.suggerimento; }
    void Imposta_Suggerimento(const QString& testo) override {
        if (stato_.rifiuta_suggerimento)
            throw std::runtime_error("no tool tip");
        stato_.suggerimento = testo;
    }
    int Parti() const override { return static_cast<int>(stato_.parti.size()); }
    QString Parte(int i) const override { return stato_.parti.at(i - 1); }
    void Imposta_Parte(int i, const QString& testo) override {
        if (i < 1 || i > stato_.parti.size())
            throw std::out_of_range("no such part");
        stato_.parti[i - 1] = testo;
    }

  private:
    Stato_Controllo& stato_;
};

class Finestra_Finta : public Finestra_Testi {
  public:
    QString Nome() const override { return nome; }
    QString Titolo() const override { return titolo; }
    void Imposta_Titolo(const QString& nuovo) override { titolo = nuovo; }
    std::vector<std::unique_ptr<Controllo>> Controlli() override {
        std::vector<std::unique_ptr<Controllo>> tutti;
        for (Stato_Controllo& stato : controlli)
            tutti.push_back(std::make_unique<Controllo_Finto>(stato));
        return tutti;
    }

    QString nome = QStringLiteral("Form_Prova");
    QString titolo = QStringLiteral("designed title");
    std::vector<Stato_Controllo> controlli;
};

/// A protected database with the two text tables, languages 1 and 2.
class Database_Testi {
  public:
    Database_Testi() {
        QFile(Percorso()).open(QIODevice::WriteOnly);
        database_.Apri(Percorso(), QString(), Database::Modo::Scrittura);
        const QString testo = QStringLiteral(" TEXT COLLATE NOCASE");
        database_.Esegui(
            QStringLiteral("CREATE TABLE Traduzioni_Viewer_System (Form%1, Name_Object%1, [Index]%1,"
                           " Tipo%1, Traduzione_1%1, Traduzione_2%1, Traduzione_Tooltiptext_1%1,"
                           " Traduzione_Tooltiptext_2%1, Nome_Link%1)")
                .arg(testo));
        database_.Esegui(QStringLiteral("CREATE TABLE Oggetti_Form (Form%1, Name_Object%1, [Index]%1,"
                                        " Traduzione_1%1, Traduzione_Tooltiptext_1%1)")
                             .arg(testo));
        for (const QString& istruzione : Istruzioni_Protezione(PASSWORD_DB))
            database_.Esegui(istruzione);
    }

    QString Percorso() const { return cartella_.filePath(QStringLiteral("testi.qld")); }

    /// A row with texts of language 2; the arguments are SQL literals.
    void Riga(const QString& form, const QString& oggetto, const QString& indice, const QString& testo,
              const QString& suggerimento = QStringLiteral("NULL")) {
        database_.Esegui(QStringLiteral("INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, [Index],"
                                        " Traduzione_2, Traduzione_Tooltiptext_2) VALUES (%1,%2,%3,%4,%5)")
                             .arg(form, oggetto, indice, testo, suggerimento));
    }
    void Esegui(const QString& sql) { database_.Esegui(sql); }

    /// All rows of a statement, fields joined by "|", NULL as "(null)".
    QStringList Righe(const QString& sql) {
        QStringList righe;
        for (Recordset r = database_.Apri_Recordset(sql); !r.EOF_(); r.MoveNext()) {
            QStringList campi;
            for (int i = 0; i < r.Count(); ++i)
                campi.append(r.Campo(i).E_Nullo() ? QStringLiteral("(null)") : r.Campo(i).Testo());
            righe.append(campi.join(u'|'));
        }
        return righe;
    }

  private:
    QTemporaryDir cartella_;
    Database database_;
};
