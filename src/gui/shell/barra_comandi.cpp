#include "gui/shell/barra_comandi.h"

#include <QToolButton>

#include "gui/platform/icone.h"
#include "gui/platform/suggerimenti.h"

namespace {

struct Comando_Barra {
    const char* Key;
    const char* Testo;  ///< shown when no text catalogue can be read
    QKeySequence Tasti;
    QKeySequence Altri_Tasti = {};  ///< do the same, and aren't told
};

const std::array<Comando_Barra, 12>& Comandi() {
    static const std::array<Comando_Barra, 12> comandi{{
        {"KEY_HOME", "Home page", QKeySequence(Qt::CTRL | Qt::Key_Home)},
        {"KEY_OPEN", "Open a catalogue", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"KEY_DISEGNO", "Drawing and parts list", QKeySequence(Qt::CTRL | Qt::Key_D)},
        {"KEY_LUCCHETTO", "Log in", QKeySequence(Qt::CTRL | Qt::Key_L)},
        {"KEY_LINGUA", "Language and market", QKeySequence(Qt::CTRL | Qt::Key_G)},
        {"KEY_CARELLO_PARZIALE", "Cart of this product", QKeySequence(Qt::CTRL | Qt::Key_K)},
        {"KEY_EVADI_ORDINE", "Order", QKeySequence(Qt::CTRL | Qt::Key_E)},
        {"KEY_ZOOM_ALL", "Whole drawing", QKeySequence(Qt::CTRL | Qt::Key_0)},
        {"KEY_ZOOM_WIN", "Zoom to a window", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
        {"KEY_ZOOM_PIU", "Zoom in", QKeySequence(Qt::CTRL | Qt::Key_Plus),
         QKeySequence(Qt::CTRL | Qt::Key_Equal)},  // where the plus needs Shift
        {"KEY_ZOOM_MENO", "Zoom out", QKeySequence(Qt::CTRL | Qt::Key_Minus)},
        {"KEY_HELP", "User's guide", QKeySequence(Qt::Key_F1)},
    }};
    return comandi;
}

}  // namespace

Barra_Comandi::Barra_Comandi(QWidget* padre) : QToolBar(padre) {
    setObjectName(QStringLiteral("Toolbar_Main"));
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize(QSize(24, 24));
    testi_.resize(Chiavi_Toolbar().size());
    for (const Comando_Barra& comando : Comandi()) {
        const QString key = QLatin1String(comando.Key);
        if (!Comandi_Presenti().contains(key))
            continue;
        QAction* azione = addAction(Icona_Tema(key), QLatin1String(comando.Testo));
        azione->setCheckable(E_Due_Stati(key));
        azione->setShortcuts({comando.Tasti, comando.Altri_Tasti});
        azioni_.insert(key, azione);
        QWidget* bottone = widgetForAction(azione);
        bottone->setObjectName(key);
        bottone->setFocusPolicy(Qt::TabFocus);
        Suggerimenti::Scorciatoia(*bottone, comando.Tasti);
        Imposta_Parte(static_cast<int>(Chiavi_Toolbar().indexOf(key)) + 1, QLatin1String(comando.Testo));
        connect(azione, &QAction::triggered, this, [this, key] { emit Comando(key); });
    }
}

QWidget* Barra_Comandi::Bottone(const QString& key) const {
    QAction* azione = azioni_.value(key);
    return azione ? widgetForAction(azione) : nullptr;
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
    if (i < 1 || i > testi_.size())
        return;
    testi_[i - 1] = testo;
    QAction* azione = azioni_.value(Chiavi_Toolbar().at(i - 1));
    if (!azione)
        return;
    azione->setText(testo);  // read out by screen readers
    azione->setToolTip(testo);
}
