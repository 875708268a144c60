#include "core/base/testo.h"

namespace {

QStringView Senza_Spazi(QStringView testo) {
    while (testo.startsWith(u' '))
        testo = testo.sliced(1);
    while (testo.endsWith(u' '))
        testo.chop(1);
    return testo;
}

/// Hands the tokens of the trimmed text over, one by one, until `prendi` answers false.
template <class Funzione>
void Per_Ogni_Token(QStringView testo, QStringView separatore, Funzione prendi) {
    QStringView resto = Senza_Spazi(testo);
    for (;;) {
        const qsizetype taglio = separatore.isEmpty() ? -1 : resto.indexOf(separatore);
        if (taglio < 0)
            break;
        if (!prendi(resto.first(taglio)))
            return;
        resto = resto.sliced(taglio + separatore.size());
    }
    if (!resto.isEmpty())
        prendi(resto);
}

}  // namespace

QString Trim(QStringView testo) {
    return Senza_Spazi(testo).toString();
}

QString Estrai_Token(QStringView testo, int n, QStringView separatore) {
    QString trovato = FINE_TOKEN;
    int conto = 0;
    Per_Ogni_Token(testo, separatore, [&](QStringView token) {
        if (++conto != n)
            return true;
        trovato = token.toString();
        return false;
    });
    return trovato;
}

QString Estrai_Token_Barra(QStringView testo, int n) {
    return Estrai_Token(testo, n, u"/");
}

QStringList Token(QStringView testo, QStringView separatore) {
    QStringList tutti;
    Per_Ogni_Token(testo, separatore, [&](QStringView token) {
        tutti.append(token.toString());
        return true;
    });
    return tutti;
}

QString Apici_Raddoppiati(QString& testo) {
    testo.replace(u'\'', QStringLiteral("''"));
    return testo;
}

QString Con_Apici_Raddoppiati(QString testo) {
    return Apici_Raddoppiati(testo);
}

QString Key_Da_Nodo(const QString& key) {
    if (key.contains(u"#$#"))
        return Estrai_Token(key, 2, u"#$#");
    if (key.contains(u"##"))
        return Estrai_Token(key, 2, u"##");
    return key;
}

qint16 Tipo_Nodo(const QString& key) {
    if (!key.contains(u"#$#"))
        return key.contains(u"##") ? 4 : 0;
    const QString tipo = Estrai_Token(key, 1, u"#$#");
    if (tipo == u"PRODOTTO")
        return 4;
    if (tipo == u"SOTTO_PRODOTTO")
        return 5;
    if (tipo == u"CODICI")
        return 1;
    if (tipo == u"ASSOCIAZIONE")
        return 2;
    return 0;
}

bool E_Prodotto(const QString& key) {
    return key.startsWith(u"P_") || key.startsWith(u"X_");
}

QString Formato_Decimali(int n) {
    return n > 0 ? QStringLiteral("#0.") + QString(n, u'0') : QStringLiteral("#0");
}

void Adatta_Immagine(double larghezza_immagine, double altezza_immagine, double& larghezza, double& altezza,
                     double scala) {
    if (larghezza_immagine == 0)
        return;
    double l = larghezza;
    double a = altezza_immagine * larghezza / larghezza_immagine;
    if (a > altezza) {
        a = altezza;
        l = larghezza_immagine * altezza / altezza_immagine;
    }
    larghezza = l * scala;
    altezza = a * scala;
}
