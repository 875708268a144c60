#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "gui/platform/programma_qt.h"
#include "gui/shell/form_main.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"

/// The test program itself, which takes an exception that leaves an event handler for a failure of the test.
inline Programma_Qt& Programma() {
    return static_cast<Programma_Qt&>(*qApp);
}
/// Makes the splash that is up ask for the main window at once.
void Affretta_Avvio();

/// A small machine: group G_A with products P_1 (three parts) and P_2 (none), group G_B with product P_3;
/// serial number 100 fits P_3.
Catalogo_Di_Prova Macchina();
/// A text of a window in the first language, and its tool tip.
void Traduci(Catalogo_Di_Prova& catalogo, const char* form, const char* oggetto, const Valore_Prova& testo,
             const Valore_Prova& aiuto = {});

/// The real main window over real core, with a desktop of its own.
class Finestra_Di_Prova : public testing::Test {
  protected:
    Finestra_Di_Prova();
    ~Finestra_Di_Prova() override;

    /// Shows the window; with a catalogue, opens it.
    void Mostra();
    void Apri(const Catalogo_Di_Prova& catalogo);
    /// Opens a catalogue and looks into it, at a node if one is given.
    void Consulta(const Catalogo_Di_Prova& catalogo, const char* key = nullptr);
    /// Opens another catalogue in the window that is up.
    void Apri_Altro(const Catalogo_Di_Prova& catalogo);

    QWidget* Trova(const char* nome) const;
    bool Visibile(const char* nome) const { return Trova(nome)->isVisible(); }
    QString Testo(const char* nome) const { return Trova(nome)->property("text").toString(); }
    void Clic(const char* nome);
    /// A click on a node that can be seen.
    void Clic_Nodo(const char* key);
    void Comando(const char* key);

    QTemporaryDir cartella;
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    Class_Progetto_Aperto progetto;
    std::unique_ptr<Form_Main> finestra;
    Schermo_Principale& schermo;
};
