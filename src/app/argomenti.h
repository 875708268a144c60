#pragma once

#include <QCoreApplication>
#include <QString>

#include "app/applicazione.h"

/// The command line of the viewer.
struct Argomenti {
    QString Impostazioni;  ///< file that keeps the settings, "" for the user's own
    Applicazione::Opzioni Opzioni;
};

/// Reads the command line; `descrizione` is the program's line in its help. Ends the program on a wrong
/// option, and on one that asks for help or the version.
Argomenti Leggi_Argomenti(const QCoreApplication& programma, const QString& descrizione);
