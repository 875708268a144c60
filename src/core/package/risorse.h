#pragma once
// What comes out of the resource package of the install folder: texts and languages while no catalogue is
// open, small pictures.

#include <QByteArray>
#include <QString>
#include <functional>

#include "core/package/class_progetto_aperto.h"

/// Path of the resource package.
QString Percorso_Risorse(const QString& cartella_installazione);

/// Hands the database of the resource package to `leggi`: languages and texts while no catalogue is open.
/// False when the package doesn't hold it, or when it can't be opened (told to the user).
bool Con_Dati_Risorsa(const Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                      const std::function<void(const Class_DBOper&)>& leggi);

/// The bytes of a file of the resource package, such as a small picture; empty when there is none.
QByteArray Leggi_Risorsa(const Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                         const QString& nome);

/// Applies the text catalogue to a window: the open catalogue's texts, else those of the resource package.
/// What can't be read leaves the window as designed. With `estrazione` the window's texts are written into
/// the file "traduzioni.qld" of the user's home folder instead; that fails with `Errore_DB`.
void Carica_Testi_Finestra(Class_Progetto_Aperto& progetto, const QString& cartella_installazione,
                           Finestra_Testi& finestra, bool estrazione = false);
