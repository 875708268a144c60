#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>

/// Waits for a modal dialog and works in it as its user would, while the program waits for the dialog to
/// close. A dialog that the work leaves open is closed, so that no test hangs. One that never came is a
/// failure, unless it only `puo_mancare`.
class Nel_Dialogo {
  public:
    Nel_Dialogo(const char* nome, std::function<void(QDialog&)> lavoro, bool puo_mancare = false)
        : nome_(nome), visto_(puo_mancare) {
        timer_.setInterval(1);
        QObject::connect(&timer_, &QTimer::timeout, [this, lavoro = std::move(lavoro)] {
            auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialogo || dialogo->objectName() != QLatin1String(nome_))
                return;
            timer_.stop();
            visto_ = true;
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialogo->isActiveWindow(); }));
            lavoro(*dialogo);
            if (dialogo->isVisible()) {
                lasciato_aperto_ = true;
                dialogo->reject();
            }
        });
        timer_.start();
    }
    ~Nel_Dialogo() { EXPECT_TRUE(visto_) << nome_; }
    bool Lasciato_Aperto() const { return lasciato_aperto_; }

  private:
    QTimer timer_;
    const char* nome_;
    bool visto_;
    bool lasciato_aperto_ = false;
};

/// An object of a dialog by its name.
template <class T>
T& Oggetto_Di(QDialog& dialogo, const char* nome) {
    auto* trovato = dialogo.findChild<T*>(QLatin1String(nome));
    if (!trovato)
        throw std::runtime_error(std::string("no object ") + nome);
    return *trovato;
}

/// Labels and buttons of a window whose text is wider than their place.
inline QStringList Testi_Tagliati(const QWidget& finestra) {
    QStringList tagliati;
    for (const QWidget* controllo : finestra.findChildren<QWidget*>())
        if (controllo->isVisible() && controllo->property("text").isValid() &&
            controllo->minimumSizeHint().width() > controllo->width())
            tagliati.append(controllo->objectName());
    return tagliati;
}
