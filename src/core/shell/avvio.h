#pragma once

#include <QString>

#include "core/base/porte.h"

/// The program's version, for the splash, the contacts and the updates page.
struct Versione_Programma {
    int Maggiore = 0;
    int Minore = 0;
    int Revisione = 0;
};
Versione_Programma Versione();

/// The command line as one text: the package path, optionally "|" and a document to open at exit. A text in
/// double quotes loses its first and last character. False for a lone quote, at which the program ends
/// without a window.
bool Prepara_Riga_Comando(const QString& argomenti, QString& riga_comando);

/// The command line with the package's path made absolute: the package is remembered beyond this run.
/// `cartella` is the current folder.
QString Con_Pacchetto_Assoluto(const QString& riga_comando, const QString& cartella);

/// Works out the install folder and keeps it in the settings: the program's own folder when nothing is stored
/// or when it holds a `Data` folder (in any case of letters), else the stored one. The answer ends in a
/// separator.
QString Restituisci_Cartella_Installazione(const QString& cartella_programma, Impostazioni& impostazioni);

/// Base address of the updates page, from the settings; "" when none is configured, and then no link is
/// offered.
QString Base_Aggiornamenti(const Impostazioni& impostazioni);
/// Address of the updates page for a version and a language number.
QString Indirizzo_Aggiornamenti(const QString& base, int maggiore, int minore, int revisione, int lingua);

/// Folder of the guide in the install folder.
QString Cartella_Help(const QString& cartella_installazione);
/// File of the guide for a language key, else the English one (which may be missing).
QString Percorso_Help(const QString& cartella_help, const QString& chiave_lingua);

/// Puts a path at the head of the list of recent catalogues (100 at most, "1" the newest).
void Aggiungi_Recente(Impostazioni& impostazioni, const QString& percorso);
