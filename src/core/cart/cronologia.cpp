#include "core/cart/cronologia.h"

namespace {

/// All lines, in their order.
std::vector<Cambio_Carrello> Righe_Di(const Collection_Prodotti_Sele& selezionati) {
    std::vector<Cambio_Carrello> righe;
    for (const Class_Prodotti_Selezionati& prodotto : selezionati) {
        qsizetype posto = 0;
        for (const Class_Elenco& riga : prodotto.Collection_Elenco_Selezionati())
            righe.push_back({prodotto.Key, riga, false, posto++});
    }
    return righe;
}

/// The line of `prima` that is gone or has another quantity, else a new one of `dopo`.
std::optional<Cambio_Carrello> Differenza(const std::vector<Cambio_Carrello>& prima,
                                          const Collection_Prodotti_Sele& dopo) {
    Collection_Prodotti_Sele note;
    for (const Cambio_Carrello& c : prima) {
        const Class_Elenco* riga = Cerca_Riga(dopo, c.Prodotto, c.Riga.Key);
        if (riga == nullptr || riga->Quantita != c.Riga.Quantita)
            return c;
        (note.Esiste(c.Prodotto) ? note.Item(c.Prodotto) : note.Add(c.Prodotto))
            .Collection_Elenco_Selezionati()
            .Add(c.Riga.Key);
    }
    for (Cambio_Carrello& c : Righe_Di(dopo))
        if (Cerca_Riga(note, c.Prodotto, c.Riga.Key) == nullptr) {
            c.Nuova = true;
            return c;
        }
    return std::nullopt;
}

}  // namespace

const Cambio_Carrello* Cronologia_Carrello::Esegui(const Collection_Prodotti_Sele& selezionati,
                                                   const std::function<void()>& lavoro) {
    const std::vector<Cambio_Carrello> prima = Righe_Di(selezionati);
    const auto registra = [&]() -> const Cambio_Carrello* {
        auto cambio = Differenza(prima, selezionati);
        return cambio ? &cambi_.emplace_back(std::move(*cambio)) : nullptr;
    };
    try {
        lavoro();
    } catch (...) {
        registra();
        throw;
    }
    return registra();
}

std::optional<Cambio_Carrello> Cronologia_Carrello::Prendi() {
    if (cambi_.empty())
        return std::nullopt;
    Cambio_Carrello ultimo = std::move(cambi_.back());
    cambi_.pop_back();
    return ultimo;
}

void Ripristina(const Collection_Prodotti_Sele& selezionati, const Cambio_Carrello& cambio) {
    if (Class_Elenco* riga = Cerca_Riga(selezionati, cambio.Prodotto, cambio.Riga.Key)) {
        const QString nota = riga->Nota;
        *riga = cambio.Riga;
        riga->Nota = nota;
        return;
    }
    if (!selezionati.Esiste(cambio.Prodotto))
        return;
    Class_Prodotti_Selezionati& prodotto = selezionati.Item(cambio.Prodotto);
    auto elenco = std::make_shared<Collection_Elenco>();
    const auto aggiungi = [&](const Class_Elenco& riga) { elenco->Add(riga.Key) = riga; };
    for (const Class_Elenco& riga : prodotto.Collection_Elenco_Selezionati()) {
        if (elenco->Count() == cambio.Posto)
            aggiungi(cambio.Riga);
        aggiungi(riga);
    }
    if (!elenco->Esiste(cambio.Riga.Key))
        aggiungi(cambio.Riga);
    prodotto.Collection_Elenco_Selezionati(std::move(elenco));
}
