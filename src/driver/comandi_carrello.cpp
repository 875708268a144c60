// Commands about the cart, and the keys with which its cells are edited.

#include <QApplication>
#include <QKeySequence>
#include <QTest>

#include "driver/driver.h"
#include "driver/oggetti.h"

namespace {

QJsonArray Righe(const Collection_Elenco& elenco) {
    QJsonArray righe;
    for (const Class_Elenco& riga : elenco)
        righe.append(QJsonObject{{"key", riga.Key},
                                 {"code", riga.Codice},
                                 {"quantity", static_cast<double>(riga.Quantita)},
                                 {"note", riga.Nota},
                                 {"graphic", riga.Chiave_Grafica},
                                 {"reference", riga.Riferimento}});
    return righe;
}

}  // namespace

void Driver::Registra_Carrello() {
    Comanda(u"store"_qs, CON_FINESTRA, [this](const QJsonObject&) -> Esito {
        QJsonArray prodotti;
        for (const Class_Prodotti_Selezionati& prodotto : applicazione_.Progetto().Prodotti_Selezionati)
            prodotti.append(QJsonObject{{"product", prodotto.Key},
                                        {"lines", Righe(prodotto.Collection_Elenco_Selezionati())}});
        return QJsonObject{{"store", prodotti}};
    });
    Comanda(u"key"_qs, CON_FINESTRA, [](const QJsonObject& c) {
        const QString nome = c["key"].toString();
        const QKeySequence tasti = QKeySequence::fromString(nome, QKeySequence::PortableText);
        if (tasti.count() != 1 || tasti[0].key() == Qt::Key_unknown)
            throw Errore_Comando(u"no key %1"_qs.arg(nome));
        QWidget* fuoco = QApplication::focusWidget();
        if (c.contains("object"))
            (fuoco = &Trova_Usabile(c["object"].toString()))->setFocus();
        if (!fuoco)
            throw Errore_Comando(u"nothing has the keyboard"_qs);
        QTest::keyClick(fuoco, tasti[0].key(), tasti[0].keyboardModifiers());
    });
}
