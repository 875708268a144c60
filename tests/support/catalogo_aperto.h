#pragma once

#include <QTemporaryDir>
#include <stdexcept>

#include "core/catalogue_db/class_dboper.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"

/// The database of a catalogue made in test code, opened as the viewer opens one.
class Catalogo_Aperto {
  public:
    explicit Catalogo_Aperto(const Catalogo_Di_Prova& catalogo) : DB(messaggi_) {
        Percorso = catalogo.Database(cartella_.path());
        if (!DB.Open_Database(Percorso))
            throw std::runtime_error(messaggi_.Testi().join(u' ').toStdString());
    }

  private:
    QTemporaryDir cartella_;
    Messaggi_Finti messaggi_;

  public:
    QString Percorso;
    Class_DBOper DB;
};
