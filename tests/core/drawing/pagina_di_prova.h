#pragma once
// The drawing's neighbours in tables, over a real catalogue.

#include <gmock/gmock.h>

#include <QHash>
#include <functional>
#include <optional>
#include <utility>

#include "core/drawing/controllo_disegno.h"
#include "support/catalogo_aperto.h"
#include "support/lavagna_finta.h"
#include "support/schermo_finto.h"

/// What was asked of the canvas and of its neighbours, in order.
using Diario = QStringList;

/// A package of some files.
class File_Finti : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override { return Percorsi.value(nome); }
    QHash<QString, QString> Percorsi;
};

/// A system whose pending events do what a test wants, once.
class Sistema_Con_Eventi : public Sistema_Finto {
  public:
    void Esegui_Eventi() override {
        Sistema_Finto::Esegui_Eventi();
        if (auto lavoro = std::exchange(In_Attesa, nullptr))
            lavoro();
    }
    std::function<void()> In_Attesa;
};

/// The drawing over a catalogue that each test completes before it calls `Apri`.
class Con_Disegno : public testing::Test {
  protected:
    Controllo_Disegno& Apri() {
        aperto.emplace(catalogo);
        disegno.emplace(
            Controllo_Disegno::Vicini{lavagna, aperto->DB, file, sistema, schermo, albero, selezionati});
        disegno->Collega_Carrello(
            [this](const QString& chiave, const QString& prodotto, const QString& riferimento) {
                lavagna.chiamate << "Aggiungi " + chiave + ' ' + prodotto + ' ' + riferimento;
                return Esito;
            });
        return *disegno;
    }
    /// What was done since the last call.
    Diario Fatto() { return std::exchange(lavagna.chiamate, {}); }

    Catalogo_Di_Prova catalogo;
    Lavagna_Finta lavagna;
    Schermo_Finto schermo{lavagna.chiamate};
    File_Finti file;
    Albero_Visibile albero;
    Collection_Prodotti_Sele selezionati;
    bool Esito = true;  ///< of an add
    Sistema_Con_Eventi sistema;
    std::optional<Catalogo_Aperto> aperto;
    std::optional<Controllo_Disegno> disegno;
};
