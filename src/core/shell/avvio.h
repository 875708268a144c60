#pragma once

#include <QString>

#include "core/base/porte.h"

/// The command line as one text: the package path, optionally "|" and a document to open at exit. A text in
/// double quotes loses its first and last character. nullopt-like "false" for a lone quote, at which the
/// program ends without a window.
bool Prepara_Riga_Comando(const QString& argomenti, QString& riga_comando);

/// Works out the install folder and keeps it in the settings: the program's own folder when nothing is stored
/// or when it holds a `Data` folder, else the stored one. The answer ends in a separator.
QString Restituisci_Cartella_Installazione(const QString& cartella_programma, Impostazioni& impostazioni);

/// Address of the updates page for a version and a language number.
QString Indirizzo_Aggiornamenti(const QString& base, int maggiore, int minore, int revisione, int lingua);

/// File of the guide for a language key, else the English one (which may be missing).
QString Percorso_Help(const QString& cartella_help, const QString& chiave_lingua);

/// Puts a path at the head of the list of recent catalogues (100 at most, "1" the newest).
void Aggiungi_Recente(Impostazioni& impostazioni, const QString& percorso);
