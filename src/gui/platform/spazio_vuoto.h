#pragma once

#include <QLabel>

/// A label named as the screens know it, whose text is never read as markup.
QLabel* Etichetta(const char* nome, const char* testo, QWidget* padre);
/// A text in the middle of an empty space, under a faint picture of the program (`immagine` is its name).
QWidget* Spazio_Vuoto(QLabel* testo, const QString& immagine, QWidget* padre);
