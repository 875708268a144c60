#include "core/archivio/nomi_voci.h"

#include <QFile>
#include <algorithm>
#include <numeric>

namespace {

constexpr qsizetype MASSIMO_NOME = 255;  // bytes of a file name on the usual file systems

/// Order of two names read from their ends.
bool Viene_Prima(QStringView a, QStringView b) {
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

}  // namespace

QString Nome_Di_Ricerca(const QString& voce) {
    return voce.trimmed().replace(u'\\', u'/');
}

QString Nome_Sicuro(const QString& voce) {
    const QString barre = QString(voce).replace(u'\\', u'/');
    const QString nome = barre.sliced(barre.lastIndexOf(u'/') + 1);
    if (nome == u"." || nome == u"..")
        return {};
    if (nome.size() >= 2 && nome[1] == u':' && nome[0].isLetter())  // "C:file"
        return {};
    for (const QChar c : nome)
        if (c.category() == QChar::Other_Control)
            return {};
    return QFile::encodeName(nome).size() > MASSIMO_NOME ? QString() : nome;
}

Nomi_Voci::Nomi_Voci(const QStringList& voci) {
    nomi_.reserve(voci.size());
    for (const QString& voce : voci)
        nomi_ += Nome_Di_Ricerca(voce);
}

qsizetype Nomi_Voci::Cerca(const QString& nome) const {
    if (ordine_.empty()) {
        ordine_.resize(static_cast<size_t>(nomi_.size()));
        std::iota(ordine_.begin(), ordine_.end(), 0);
        std::sort(ordine_.begin(), ordine_.end(),
                  [this](qsizetype a, qsizetype b) { return Viene_Prima(nomi_[a], nomi_[b]); });
    }
    qsizetype ultima = -1;
    for (auto i = std::lower_bound(ordine_.begin(), ordine_.end(), nome,
                                   [this](qsizetype a, const QString&b) { return Viene_Prima(nomi_[a], b); });
         i != ordine_.end() && nomi_[*i].endsWith(nome); ++i)
        ultima = std::max(ultima, *i);
    return ultima;
}
