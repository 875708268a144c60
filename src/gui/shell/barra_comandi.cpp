#include "gui/shell/barra_comandi.h"

#include <QToolButton>

#include "core/shell/comandi.h"
#include "gui/platform/icone.h"
#include "gui/platform/suggerimenti.h"

Barra_Comandi::Barra_Comandi(QWidget* padre) : QToolBar(padre) {
    setObjectName(QStringLiteral("Toolbar_Main"));
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize(QSize(24, 24));
    for (const Comando& comando : Comandi()) {
        const QString testo = QLatin1String(comando.Testo);
        testi_.append(testo);
        if (!comando.Esegui)
            continue;
        const auto tasti =
            QKeySequence::listFromString(QLatin1String(comando.Tasti), QKeySequence::PortableText);
        QAction* azione = addAction(Icona_Tema(QLatin1String(comando.Icona)), testo);
        azione->setCheckable(comando.Due_Stati);
        azione->setShortcuts(tasti);
        azioni_.insert(comando.Key, azione);
        QWidget* bottone = widgetForAction(azione);
        bottone->setObjectName(comando.Key);
        bottone->setFocusPolicy(Qt::TabFocus);
        Suggerimenti::Scorciatoia(*bottone, tasti.value(0));
        Imposta_Parte(static_cast<int>(testi_.size()), testo);
        connect(azione, &QAction::triggered, this, [this, &comando] { emit Premuto(comando.Key); });
    }
}

QWidget* Barra_Comandi::Bottone(const QString& key) const {
    QAction* azione = azioni_.value(key);
    return azione ? widgetForAction(azione) : nullptr;
}

QString Barra_Comandi::Testo(const QString& key) const {
    const Comando* comando = Cerca_Comando(key);
    return comando ? testi_[comando - Comandi().data()] : QString();
}

void Barra_Comandi::Mostra(const Stato_Finestra& stato) {
    for (const auto& [key, bottone] : stato.Bottoni)
        if (QAction* azione = azioni_.value(key)) {
            azione->setEnabled(bottone.Enabled);
            if (azione->isCheckable())
                azione->setChecked(bottone.Pressed);
        }
    setEnabled(stato.Abilitata);
}

void Barra_Comandi::Imposta_Parte(int i, const QString& testo) {
    if (i < 1 || i > Parti())
        return;
    testi_[i - 1] = testo;
    if (QAction* azione = azioni_.value(Comandi()[static_cast<size_t>(i - 1)].Key)) {
        azione->setText(testo);  // read out by screen readers
        azione->setToolTip(testo);
    }
}
