#pragma once

#include <QAction>
#include <QHash>
#include <QStringList>
#include <QToolBar>

#include "core/shell/stato_finestra.h"
#include "gui/localisation/finestra_qt.h"

/// `Toolbar_Main`: a button for each command that exists, named by its key. The texts of the catalogue count
/// all commands, so those of absent buttons are kept too.
class Barra_Comandi : public QToolBar, public Parti_Toolbar {
    Q_OBJECT
  public:
    explicit Barra_Comandi(QWidget* padre = nullptr);
    void Mostra(const Stato_Finestra& stato);
    /// The button of a key; nullptr when it isn't on the bar.
    QWidget* Bottone(const QString& key) const;
    /// The text of a command.
    QString Testo(const QString& key) const;

    int Parti() const override { return static_cast<int>(testi_.size()); }
    QString Parte(int i) const override { return testi_.value(i - 1); }
    void Imposta_Parte(int i, const QString& testo) override;

  signals:
    void Premuto(const QString& key);

  private:
    QHash<QString, QAction*> azioni_;
    QStringList testi_;  ///< of all commands, in their order
};
