#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "gui/drawing/lavagna_widget.h"

/// Drawings written for a test, in a folder of its own.
class Disegni {
  public:
    static constexpr char RADICE[] = "viewBox='0 0 400 300'";
    QString Scrivi(const QString& nome, const QByteArray& dati) const {
        QFile file(cartella_.filePath(nome));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dati);
        return file.fileName();
    }
    QString Svg(const QString& nome, const QByteArray& contenuto, const QByteArray& radice = RADICE) const {
        return Scrivi(nome, "<svg xmlns='http://www.w3.org/2000/svg' " + radice + ">" + contenuto + "</svg>");
    }
    /// Two balloons drawn as empty circles, at (100, 100) and (300, 200), radius 40, and a part that bears
    /// the string of the first, at (20..60, 220..260).
    QString Palloni(const QString& nome = "balloons.svg", const QByteArray& radice = RADICE) const {
        return Svg(nome, R"(
            <circle id='b1' data-hotspot='CODICI#$#A1' cx='100' cy='100' r='40' fill='none' stroke='black'/>
            <circle data-hotspot='2' cx='300' cy='200' r='40' fill='none' stroke='black'/>
            <rect id='part' data-hotspot='CODICI#$#A1' x='20' y='220' width='40' height='40' fill='#ddd'/>)",
                   radice);
    }
    QString Percorso(const QString& nome) const { return cartella_.filePath(nome); }

  private:
    QTemporaryDir cartella_;
};

/// A canvas of 412 x 312, shown: a page of 400 x 300 fits at one pixel to a unit, 6 pixels from the edges.
class Con_Lavagna : public testing::Test {
  protected:
    Con_Lavagna() {
        lavagna.resize(412, 312);
        lavagna.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&lavagna));
        lavagna.activateWindow();
        lavagna.Evento.Mouse_Su_HotSpot = [this](qint16 stato, const QString& nome, const QString& stringa) {
            eventi << (stato == 0 ? "in " : "out ") + nome + " " + stringa;
        };
        lavagna.Evento.Click_Su_HotSpot = [this](const QString& nome, const QString& stringa) {
            eventi << "click " + nome + " " + stringa;
            return gestito;
        };
        lavagna.Evento.Doppio_Click_Su_HotSpot = [this](const QString& nome, const QString& stringa) {
            eventi << "double " + nome + " " + stringa;
            return true;
        };
        lavagna.Evento.Mouse_Fuori = [this](qint16, qint16, double x, double y) {
            fuori = QPointF(x, y);
            ++fuori_contati;
        };
    }
    void Carica(const QString& percorso) {
        lavagna.Carica_Layout(percorso, 0);
        Attendi();
    }
    void Attendi() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return lavagna.Aggiornata(); }));
    }
    void Esegui(const char* comando, int volte = 1) {
        for (int i = 0; i < volte; ++i)
            lavagna.Esegui(comando, 1);
    }
    double Zoom() { return lavagna.Introspezione().zoom; }
    /// Page units of a fitted page of 400 x 300 to pixels.
    static QPoint Qui(int x, int y) { return {x + 6, y + 6}; }
    void Muovi(QPoint dove) { QTest::mouseMove(lavagna.viewport(), dove); }
    void Clicca(QPoint dove) { QTest::mouseClick(lavagna.viewport(), Qt::LeftButton, {}, dove); }
    void Trascina(QPoint da, QPoint a, Qt::MouseButton bottone = Qt::LeftButton) {
        QTest::mousePress(lavagna.viewport(), bottone, {}, da);
        Muovi(a);
        QTest::mouseRelease(lavagna.viewport(), bottone, {}, a);
    }
    QImage Foto() {
        Attendi();
        return lavagna.viewport()->grab().toImage();
    }
    QStringList Eventi(const QString& genere = {}) { return std::exchange(eventi, {}).filter(genere); }

    Disegni disegni;
    Lavagna_Widget lavagna;
    QStringList eventi;
    QPointF fuori;
    int fuori_contati = 0;
    bool gestito = false;
};
