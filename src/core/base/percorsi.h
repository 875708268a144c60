#pragma once
// Paths, file names and folders.

#include <QString>
#include <QStringView>

/// The path with one trailing separator of the platform.
QString Cartella_Con_Barra(const QString& percorso);
/// What follows the last separator among the last 999 characters; a path without it yields itself.
QString Nome_File(const QString& percorso, QStringView separatore);
/// The path up to and including the last separator; "" without one.
QString Cartella_File(const QString& percorso, QStringView separatore);
/// Of the last path component (behind "/" or "\"), what follows its first "."; "" if there is none or it
/// comes first.
QString Estensione_File(const QString& percorso);
/// 2 for a catalogue package (`.TZF`), else 3.
qint16 Tipo_File(const QString& percorso);
/// Deletes a folder tree. Errors are skipped and the walk goes on; links are removed, never followed. A path
/// that isn't a folder is left alone.
void Elimina_Cartella(const QString& cartella);
