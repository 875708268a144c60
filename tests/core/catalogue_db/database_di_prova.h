#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <stdexcept>

#include "../base/righe.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/engine/protezione.h"
#include "support/fakes.h"

/// A catalogue database written by the statements of a test, opened as the viewer opens one.
class Database_Di_Prova {
  public:
    explicit Database_Di_Prova(const QStringList& istruzioni) {
        Database scrittura;
        scrittura.Apri(Percorso(), QString(), Database::Modo::Scrittura);
        scrittura.Esegui("PRAGMA synchronous=OFF");
        for (const QString& sql : istruzioni + Istruzioni_Protezione(PASSWORD_DB))
            scrittura.Esegui(sql);
        scrittura.Chiudi();
        if (!DB.Open_Database(Percorso()))
            throw std::runtime_error(Messaggi_.Testi().join(' ').toStdString());
    }
    QString Percorso() const { return cartella_.filePath("prova.db"); }

  private:
    QTemporaryDir cartella_;

  public:
    Messaggi_Finti Messaggi_;
    Class_DBOper DB{Messaggi_};
};

/// The statements of a table of texts that ignore case, as the catalogues have them: its columns between
/// blanks, its rows as SQL values.
inline QStringList Tabella(const QString& nome, QString colonne, const QString& righe = {}) {
    const QString testo = " TEXT COLLATE NOCASE";
    QStringList istruzioni{"CREATE TABLE " + nome + " (" + colonne.replace(' ', testo + ", ") + testo + ")"};
    if (!righe.isEmpty())
        istruzioni += "INSERT INTO " + nome + " VALUES " + righe;
    return istruzioni;
}
