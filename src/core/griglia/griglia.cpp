#include "core/griglia/griglia.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int COLONNE_INIZIALI = 2;

QString Fra_Virgolette(const QString& testo) {
    constexpr QStringView SPECIALI = u"\t\r\n\"";
    if (std::none_of(testo.begin(), testo.end(), [=](QChar c) { return SPECIALI.contains(c); }))
        return testo;
    QString raddoppiato = testo;
    return u'"' + raddoppiato.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace

Griglia::Griglia()
    : colonne_(COLONNE_INIZIALI), righe_(2, std::vector<Cella>(static_cast<size_t>(COLONNE_INIZIALI))) {}

void Griglia::Cols(int n) {
    const auto nuove = static_cast<size_t>(std::max(n, 0));
    if (nuove == colonne_.size())
        return;
    colonne_.resize(nuove);
    for (auto& riga : righe_)
        riga.resize(nuove);
}

Cella& Griglia::At(int riga, int colonna) {
    return righe_.at(static_cast<size_t>(riga)).at(static_cast<size_t>(colonna));
}

const Cella& Griglia::At(int riga, int colonna) const {
    return righe_.at(static_cast<size_t>(riga)).at(static_cast<size_t>(colonna));
}

void Griglia::AddItem(QStringList celle) {
    auto prima = std::find_if(celle.begin(), celle.end(), [](const QString& c) { return !c.isEmpty(); });
    if (prima == celle.end())
        return;
    for (Cella& cella : righe_.emplace_back(colonne_.size())) {
        if (prima == celle.end())
            break;
        cella.Text = std::move(*prima++);
    }
}

void Griglia::RemoveItem(int riga) {
    if (riga < 1 || riga >= Rows())
        throw std::out_of_range("Subscript out of range: row of a grid");
    if (Rows() == 2)
        righe_[1].assign(colonne_.size(), Cella());
    else
        righe_.erase(righe_.begin() + riga);
}

void Griglia::Clear() {
    for (auto& riga : righe_)
        riga.assign(colonne_.size(), Cella());
}

QString Testo_Celle(const Griglia& griglia, int riga_1, int colonna_1, int riga_2, int colonna_2) {
    const auto [prima_riga, ultima_riga] = std::minmax(riga_1, riga_2);
    const auto [prima_colonna, ultima_colonna] = std::minmax(colonna_1, colonna_2);
    QString testo;
    for (int r = prima_riga; r <= ultima_riga; ++r) {
        if (r > prima_riga)
            testo += u'\n';
        for (int c = prima_colonna; c <= ultima_colonna; ++c) {
            if (c > prima_colonna)
                testo += u'\t';
            testo += Fra_Virgolette(griglia.TextMatrix(r, c));
        }
    }
    return testo;
}

Tag_Griglia::Tag_Griglia(int ultima_riga)
    : fissa_(true),
      righe_(static_cast<size_t>(ultima_riga + 1), {QString(), std::vector<QString>(ULTIMA_COLONNA + 1)}) {}

int Tag_Griglia::Colonne(int riga) const {
    const auto posto = static_cast<size_t>(riga);
    return riga < 0 || posto >= righe_.size() ? 0 : static_cast<int>(righe_[posto].tag.size());
}

const QString& Tag_Griglia::At(int riga, int colonna) const {
    if (!Contiene(riga, colonna))
        throw std::out_of_range("Subscript out of range: tag of a cell");
    return righe_[static_cast<size_t>(riga)].tag[static_cast<size_t>(colonna)];
}

void Tag_Griglia::Imposta(int riga, int colonna, const QString& tag) {
    const auto posto = static_cast<size_t>(colonna);
    std::vector<QString>& celle = Per_Scrivere(riga).tag;
    if (colonna < 0 || (fissa_ && posto >= celle.size()))
        throw std::out_of_range("Subscript out of range: tag of a cell");
    if (posto >= celle.size())
        celle.resize(posto + 1);
    celle[posto] = tag;
}

const QString& Tag_Griglia::Riga(int riga) const {
    return righe_.at(static_cast<size_t>(riga)).chiave;
}

void Tag_Griglia::Riga(int riga, const QString& chiave) {
    Per_Scrivere(riga).chiave = chiave;
}

Tag_Griglia::Tag_Riga& Tag_Griglia::Per_Scrivere(int riga) {
    const auto posto = static_cast<size_t>(riga);
    if (!fissa_ && riga >= 0 && posto >= righe_.size())
        righe_.resize(posto + 1);
    return righe_.at(posto);
}
