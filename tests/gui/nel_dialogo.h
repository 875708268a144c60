#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <functional>

/// Waits for a modal dialog and works in it as its user would, while the program waits for the dialog to
/// close. A dialog that the work leaves open is closed, so that no test hangs.
class Nel_Dialogo {
  public:
    Nel_Dialogo(const char* nome, std::function<void(QDialog&)> lavoro) {
        timer_.setInterval(1);
        QObject::connect(&timer_, &QTimer::timeout, [this, nome, lavoro = std::move(lavoro)] {
            auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialogo || dialogo->objectName() != QLatin1String(nome))
                return;
            timer_.stop();
            ++volte_;
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialogo->isActiveWindow(); }));
            lavoro(*dialogo);
            if (dialogo->isVisible()) {
                lasciato_aperto_ = true;
                dialogo->reject();
            }
        });
        timer_.start();
    }
    bool Visto() const { return volte_ > 0; }
    bool Lasciato_Aperto() const { return lasciato_aperto_; }

  private:
    QTimer timer_;
    int volte_ = 0;
    bool lasciato_aperto_ = false;
};

/// A control of a dialog by its name.
template <class T>
T& Controllo_Di(QDialog& dialogo, const char* nome) {
    auto* trovato = dialogo.findChild<T*>(QLatin1String(nome));
    if (!trovato)
        throw std::runtime_error(std::string("no control ") + nome);
    return *trovato;
}

/// Labels and buttons of a dialog whose text is wider than their place.
inline QStringList Testi_Tagliati(const QDialog& dialogo) {
    QStringList tagliati;
    for (const QWidget* controllo : dialogo.findChildren<QWidget*>())
        if (controllo->isVisible() && controllo->property("text").isValid() &&
            controllo->minimumSizeHint().width() > controllo->width())
            tagliati.append(controllo->objectName());
    return tagliati;
}
