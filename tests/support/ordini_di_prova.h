#pragma once
// Worked orders: steps in, the filled cart out, each figure worked out by hand. They stand in the folder
// worked_orders with the tables of their catalogue, and are held against the fill itself and against the
// publisher's tool.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "core/base/porte.h"
#include "core/cart/aggiunta.h"
#include "core/griglia/griglia.h"
#include "support/catalogo_di_prova.h"

/// One step, as the tool reads it.
struct Passo_Ordine {
    enum Genere { Aggiungi, Oggetto, Quantita, Nota, Togli };
    Genere genere;
    QString prodotto;
    QString a;  ///< code; name of the object; key of the line
    QString b;  ///< reference; code picked among several, "" for none; text

    QByteArray Riga() const;
    /// Does it on the core. What the viewer shows as a message goes to `messaggi`.
    void Esegui(const Aggiunta_Carrello& carrello, Messaggi& messaggi) const;
};

/// Which catalogue an order is made in.
enum class Variante {
    Libera,       ///< steps are only the amount of one add
    Obbligata,    ///< quantities are rounded up to the step
    Sconto_Base,  ///< everybody without keys has the keys "/D10/"
    Due_Prezzi,   ///< a second price without decimals and a second discount column
    Senza_Prezzi  ///< no price column
};

struct Ordine_Di_Prova {
    std::string nome;
    Variante variante = Variante::Libera;
    std::vector<Passo_Ordine> passi;
    /// The rows: cells between "|", but of a total "text = amount; amount". None: nothing shows.
    QStringList righe;
    QString login;
    QStringList messaggi;
};

Catalogo_Di_Prova Catalogo_Ordini(Variante variante);
std::vector<Ordine_Di_Prova> Ordini_Di_Prova();

/// A row of a filled cart in the form of the table. `note` is the column of the notes.
QString Riga_Ordine(const QStringList& celle, const QStringList& tag, int note);
/// The rows of a filled grid.
QStringList Righe_Ordine(const Griglia& griglia, const Tag_Griglia& tag);
