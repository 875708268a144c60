#pragma once

#include <QByteArrayView>
#include <QString>

/// How many bytes tell whose file one is.
inline constexpr qint64 BYTE_INIZIO = 64;

/// Whether the first `BYTE_INIZIO` bytes of a file are those of a database that a catalogue can come with.
bool E_Un_Database(QByteArrayView inizio);

/// Makes a file that came out of a package a database of our engine, in place; the first bytes tell whose it
/// is. Nothing behind this step knows that there are other engines. Fails with `Errore_DB` on a file of none
/// that is known; one that can't be read is left to the opening, which tells what is wrong.
void Converti_Database(const QString& percorso);
