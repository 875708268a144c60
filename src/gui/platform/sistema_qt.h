#pragma once

#include "core/base/porte.h"

/// The desktop: its temporary folder, its default handlers, its event loop and its number format.
class Sistema_Qt : public Sistema {
  public:
    QString Cartella_Temporanea() const override;
    void Apri_Con_Predefinito(const QString& percorso) override;
    void Esegui_Eventi() override;
    QChar Separatore_Decimale() const override;
};
