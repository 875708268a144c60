#pragma once
// Tokens, quotes and node keys: the small text helpers that everything else calls.

#include <QString>
#include <QStringList>
#include <QStringView>

/// What `Estrai_Token` answers when the token doesn't exist: the one-character text of code 0.
inline const QString FINE_TOKEN = QString(QChar(0));

/// The text without the blanks (code 32) at its two ends. Line ends and tabs stay, unlike `QString::trimmed`.
QString Trim(QStringView testo);

/// The n-th token (from 1) of the trimmed text; `FINE_TOKEN` when there are fewer. The separator may have
/// several characters. An empty token between two separators is ""; a trailing separator adds none.
QString Estrai_Token(QStringView testo, int n, QStringView separatore);
/// `Estrai_Token` with "/".
QString Estrai_Token_Barra(QStringView testo, int n);
/// All tokens that `Estrai_Token` gives for n = 1, 2, ... up to the marker, in one pass.
QStringList Token(QStringView testo, QStringView separatore);

/// Doubles each "'" in place, for use inside an SQL literal, and returns the text.
QString Apici_Raddoppiati(QString& testo);
/// The same on a copy.
QString Con_Apici_Raddoppiati(QString testo);

/// The value of a hotspot string or node key: the second token by "#$#", else by "##", else the key itself.
QString Key_Da_Nodo(const QString& key);
/// The kind of a hotspot string: `PRODOTTO` 4, `SOTTO_PRODOTTO` 5, `CODICI` 1, `ASSOCIAZIONE` 2, other 0;
/// without "#$#", 4 if it holds "##", else 0.
qint16 Tipo_Nodo(const QString& key);
/// The node's key begins with "P_" or "X_": a product with sheet, drawing and parts.
bool E_Prodotto(const QString& key);

/// A mask with n decimals: "#0", and for n above 0 "." and n zeros.
QString Formato_Decimali(int n);

/// Fits a picture of `larghezza_immagine` x `altezza_immagine` into the box `larghezza` x `altezza`, keeping
/// its proportions, then multiplies both by `scala`. A picture of width 0 leaves the box as it was.
void Adatta_Immagine(double larghezza_immagine, double altezza_immagine, double& larghezza, double& altezza,
                     double scala);
