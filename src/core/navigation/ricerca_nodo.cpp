#include "core/navigation/albero_visibile.h"

namespace {

const std::vector<Nodo_Visibile*>& Fratelli(const Albero_Visibile& albero, const Nodo_Visibile& nodo) {
    return nodo.Parent ? nodo.Parent->Figli : albero.Primo_Livello();
}

/// The next of the node's siblings; nullptr when it is the last.
Nodo_Visibile* Next(const Albero_Visibile& albero, const Nodo_Visibile& nodo) {
    const auto& fratelli = Fratelli(albero, nodo);
    const size_t seguente = static_cast<size_t>(nodo.Riga) + 1;
    return seguente < fratelli.size() ? fratelli[seguente] : nullptr;
}

/// The node after this one in the walk: the first child, else the next sibling of the node or of the nearest
/// ancestor that has one. nullptr behind the last node of the tree.
Nodo_Visibile* Seguente(const Albero_Visibile& albero, const Nodo_Visibile& nodo) {
    if (!nodo.Figli.empty())
        return nodo.Figli.front();
    for (const Nodo_Visibile* n = &nodo; n; n = n->Parent)
        if (Nodo_Visibile* fratello = Next(albero, *n))
            return fratello;
    return nullptr;
}

/// The walk from the selected node around the tree. A loop, since a recursion would be as deep as the tree
/// has nodes.
void Cerca_Nodo_Ricorsivo(Albero_Visibile& albero, Nodo_Visibile& partenza, const QString& testo,
                          const std::function<void(Nodo_Visibile&)>& trovato) {
    int giri = 0;
    Nodo_Visibile* nodo = &partenza;
    // The starting node is passed over, so that "next" doesn't find the node where it stands; on the way
    // round it counts again.
    for (bool primo = true; giri < 2; primo = false) {
        if (!primo && nodo->Text == testo) {
            albero.Seleziona(nodo);
            trovato(*nodo);
            return;
        }
        nodo = Seguente(albero, *nodo);
        if (!nodo) {
            ++giri;
            nodo = albero.Primo_Livello().front();
        }
    }
    albero.Seleziona(albero.Primo_Livello().front());
}

}  // namespace

void Cerca_Nodo_Albero(Albero_Visibile& albero, const QString& testo,
                       const std::function<void(Nodo_Visibile&)>& trovato) {
    if (testo.isEmpty() || albero.Count() == 0)
        return;
    if (!albero.Albero_Ha_Selezione())
        albero.Seleziona(albero.Primo_Livello().front());
    Cerca_Nodo_Ricorsivo(albero, *albero.SelectedItem(), testo, trovato);
}
