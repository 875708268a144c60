#include "core/navigation/albero_visibile.h"

#include "core/base/testo.h"

void Albero_Visibile::Clear() {
    selezionato_ = nullptr;
    Combo_Nodi.clear();
    per_key_.clear();
    cercabili_ = 0;
    radici_.clear();
    nodi_.clear();
}

Nodo_Visibile& Albero_Visibile::Add(Nodo_Visibile* padre, const QString& key, const QString& testo) {
    std::vector<Nodo_Visibile*>& fratelli = padre ? padre->Figli : radici_;
    Nodo_Visibile& nodo = nodi_.emplace_back(key, testo, padre);
    nodo.Riga = static_cast<int>(fratelli.size());
    fratelli.push_back(&nodo);
    return nodo;
}

Nodo_Visibile* Albero_Visibile::Nodo(const QString& key) const {
    if (per_key_.isEmpty() && !nodi_.empty())
        per_key_.reserve(Count());
    for (; cercabili_ < nodi_.size(); ++cercabili_)
        per_key_.insert(nodi_[cercabili_].Key, const_cast<Nodo_Visibile*>(&nodi_[cercabili_]));
    return per_key_.value(key, nullptr);
}

std::vector<const Nodo_Visibile*> Albero_Visibile::In_Ordine() const {
    std::vector<const Nodo_Visibile*> ordine;
    ordine.reserve(nodi_.size());
    std::vector<const Nodo_Visibile*> da_visitare(radici_.rbegin(), radici_.rend());
    while (!da_visitare.empty()) {
        const Nodo_Visibile* nodo = da_visitare.back();
        da_visitare.pop_back();
        ordine.push_back(nodo);
        da_visitare.insert(da_visitare.end(), nodo->Figli.rbegin(), nodo->Figli.rend());
    }
    return ordine;
}

void Albero_Visibile::Seleziona(Nodo_Visibile* nodo) {
    selezionato_ = nodo;
    if (!nodo)
        return;
    for (Nodo_Visibile* antenato = nodo->Parent; antenato; antenato = antenato->Parent)
        antenato->Expanded = true;
}

void Albero_Visibile::Espandi_Albero(bool espanso) {
    for (Nodo_Visibile& nodo : nodi_)
        if (espanso || nodo.Key != u"R")
            nodo.Expanded = espanso;
}

QString Albero_Visibile::FullPath(const Nodo_Visibile& nodo) {
    QStringList testi;
    for (const Nodo_Visibile* n = &nodo; n; n = n->Parent)
        testi.prepend(n->Text);
    return testi.join(u'\\');
}

QString Controllo_SottoProdotto(const QString& stringa) {
    const auto secondo = [&stringa](QStringView separatore) {
        const QString token = Estrai_Token(stringa, 2, separatore);
        return token == FINE_TOKEN ? QString() : Trim(token);
    };
    if (stringa.contains(u"##"))
        return secondo(u"##");
    if (const QString tipo = Estrai_Token(stringa, 1, u"#$#");
        stringa.contains(u"#$#") && (tipo == u"SOTTO_PRODOTTO" || tipo == u"PRODOTTO"))
        return secondo(u"#$#");
    return {};
}
