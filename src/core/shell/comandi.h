#pragma once

#include <QString>
#include <array>

class Class_Progetto_Aperto;
class Schermo_Principale;

inline const QString KEY_HOME = QStringLiteral("KEY_HOME");
inline const QString KEY_OPEN = QStringLiteral("KEY_OPEN");
inline const QString KEY_DISEGNO = QStringLiteral("KEY_DISEGNO");
inline const QString KEY_LUCCHETTO = QStringLiteral("KEY_LUCCHETTO");
inline const QString KEY_LINGUA = QStringLiteral("KEY_LINGUA");
inline const QString KEY_CARELLO_PARZIALE = QStringLiteral("KEY_CARELLO_PARZIALE");
inline const QString KEY_EVADI_ORDINE = QStringLiteral("KEY_EVADI_ORDINE");
inline const QString KEY_EMAIL = QStringLiteral("KEY_EMAIL");
inline const QString KEY_ZOOM_WIN = QStringLiteral("KEY_ZOOM_WIN");
inline const QString KEY_HELP = QStringLiteral("KEY_HELP");

/// What a zone does to a command's button.
enum Effetto : char {
    LASCIA = '.',
    ABILITA = 'e',
    DISABILITA = 'd',
    PAGINE = 'P',  ///< enabled where the catalogue has a layout for parts pages
    ORDINE = 'O'   ///< the same for orders
};

/// A command of the main screen: all that toolbar, keyboard and links know of it.
struct Comando {
    QString Key;
    bool Due_Stati;     ///< its button stays pressed
    const char* Zone;   ///< an `Effetto` for each zone from 1: home, product, order, favourites, sheet
    const char* Icona;  ///< one of the program's icons
    const char* Testo;  ///< shown where no text catalogue can be read
    const char* Tasti;  ///< shortcuts, the first of which is told, between "; "; "" for none
    /// What it does; none: the command doesn't exist yet, and has no button.
    void (*Esegui)(Schermo_Principale& schermo) = nullptr;
    /// Tells that the command's own window is up; none for a command without one.
    bool Class_Progetto_Aperto::*Finestra = nullptr;

    Effetto In_Zona(qint16 zona) const { return static_cast<Effetto>(Zone[zona - 1]); }
    /// Greyed while no catalogue is open.
    bool Del_Catalogo() const;
};

/// All commands, in the order in which the text catalogue counts them.
const std::array<Comando, 18>& Comandi();
/// nullptr for a key that no command has.
const Comando* Cerca_Comando(const QString& key);
