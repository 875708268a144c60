#include "core/catalogue_db/engine/protezione.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include "core/catalogue_db/engine/database.h"

namespace {
constexpr int GIRI = 1000;
constexpr int BYTE_SALE = 16;

QString Impronta(const QString& password, const QString& sale) {
    const QByteArray segreto = sale.toUtf8() + password.toUtf8();
    QByteArray impronta = segreto;
    for (int i = 0; i < GIRI; ++i)
        impronta = QCryptographicHash::hash(impronta + segreto, QCryptographicHash::Sha256);
    return QString::fromLatin1(impronta.toHex());
}

QString Password_Da_Connessione(const QString& connessione) {
    for (const QString& parte : connessione.split(u';')) {
        const qsizetype uguale = parte.indexOf(u'=');
        if (uguale > 0 && parte.left(uguale).trimmed().compare(u"pwd", Qt::CaseInsensitive) == 0)
            return parte.mid(uguale + 1).trimmed();
    }
    return {};
}
}  // namespace

QStringList Istruzioni_Protezione(const QString& password) {
    QByteArray casuale(BYTE_SALE, '\0');
    for (char& byte : casuale)
        byte = static_cast<char>(QRandomGenerator::system()->bounded(256));
    const QString sale = QString::fromLatin1(casuale.toHex());
    return {QStringLiteral("DROP TABLE IF EXISTS %1;").arg(TABELLA_PROTEZIONE),
            QStringLiteral("CREATE TABLE %1 (Sale TEXT, Impronta TEXT);").arg(TABELLA_PROTEZIONE),
            QStringLiteral("INSERT INTO %1 (Sale, Impronta) VALUES ('%2', '%3');")
                .arg(TABELLA_PROTEZIONE, sale, Impronta(password, sale))};
}

void Verifica_Password(const Database& database, const QString& connessione) {
    if (!database.Tabelle().contains(TABELLA_PROTEZIONE, Qt::CaseInsensitive))
        return;
    const Recordset riga =
        database.Apri_Recordset(QStringLiteral("SELECT Sale, Impronta FROM %1;").arg(TABELLA_PROTEZIONE));
    if (riga.EOF_() || riga.Campo(u"Impronta").Testo() !=
                           Impronta(Password_Da_Connessione(connessione), riga.Campo(u"Sale").Testo()))
        throw Errore_DB(QStringLiteral("Not a valid password."));
}
