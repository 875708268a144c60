#pragma once

#include <QStringList>
#include <vector>

/// A table in one text: rows between "|", cells between "="; line ends don't count.
inline std::vector<QStringList> Righe(const char* tabella) {
    std::vector<QStringList> righe;
    for (const QString& riga : QString(tabella).remove('\n').split('|'))
        righe.push_back(riga.split('='));
    return righe;
}
