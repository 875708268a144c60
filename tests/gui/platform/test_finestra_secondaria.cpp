#include "gui/platform/finestra_secondaria.h"

#include <gtest/gtest.h>

#include "support/fakes.h"

namespace {

struct Posti : testing::Test {
    /// The size of the window after a value of the settings, in twips.
    QSize Misura(const char* chiave, const char* valore) {
        impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_PROVA", chiave, valore);
        Finestra_Secondaria finestra("Form_Prova", "", nullptr);
        finestra.Ricorda_Posto(impostazioni, numeri, "WIN_PROVA", {0, 0, 2250, 4800});
        return finestra.size() * 15;
    }
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    Numeri numeri{sistema, messaggi};
};

TEST_F(Posti, AreKeptWhenTheWindowGoesAndReadBackWithCare) {
    EXPECT_EQ(Misura("LEFT", "-150"), QSize(4800, 2250));
    EXPECT_EQ(Misura("WIDTH", "7500"), QSize(7500, 2250));
    for (const char* testo : {"", "wide", "-5", "0", "1e30", "1e99"})
        EXPECT_EQ(Misura("WIDTH", testo), QSize(4800, 2250)) << testo;

    for (const bool con_esc : {true, false}) {
        Finestra_Secondaria finestra("Form_Prova", "", nullptr, Qt::Window);
        finestra.Ricorda_Posto(impostazioni, numeri, "WIN_PROVA", {});
        int volte = 0;
        QObject::connect(&finestra, &Finestra_Secondaria::Scaricata, [&] { ++volte; });
        finestra.show();
        finestra.setGeometry(40, 30, con_esc ? 500 : 600, 200);
        con_esc ? finestra.reject() : static_cast<void>(finestra.close());
        EXPECT_EQ(volte, 1);
        EXPECT_EQ(impostazioni.Valore("WIN_PROVA", "WIDTH"), con_esc ? "7500" : "9000");
    }
}

}  // namespace
