#pragma once

#include <QComboBox>
#include <QIcon>
#include <functional>

#include "core/shell/controllo_accesso.h"
#include "gui/platform/dialogo_campi.h"

/// The choice of language and market in an open catalogue.
class Form_Lingua_Mercato : public Dialogo_Campi {
    Q_OBJECT
  public:
    /// A flag by its name; an empty icon when there is none.
    using Bandiera = std::function<QIcon(const QString& nome)>;

    Form_Lingua_Mercato(Controllo_Accesso& accesso, const Bandiera& bandiera, QWidget* padre = nullptr);

  private:
    void Command_OK_Click() override;

    Controllo_Accesso& accesso_;
    QComboBox *lingua_, *mercato_;
};

/// Fills a list with the languages or markets of `elenco`, each with its flag, and selects the current one.
void Riempi_Lingue(QComboBox& lista, const Elenco_Lingue& elenco,
                   const Form_Lingua_Mercato::Bandiera& bandiera);
