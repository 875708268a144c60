#include <gmock/gmock.h>

#include <random>

#include "core/navigation/albero_visibile.h"

namespace {

/// The walk as its rules tell it, step by step and by recursion.
class Ricerca_Per_Regole {
  public:
    explicit Ricerca_Per_Regole(Albero_Visibile& albero) : albero_(albero) {}

    void Cerca(const QString& testo) {
        if (testo.isEmpty())
            return;
        if (!albero_.Albero_Ha_Selezione() && albero_.Count() > 0)
            albero_.Seleziona(albero_.Primo_Livello().front());
        if (albero_.Albero_Ha_Selezione())
            Ricorsivo(albero_.SelectedItem(), albero_.SelectedItem(), testo, true);
    }
    QStringList Trovati;

  private:
    const std::vector<Nodo_Visibile*>& Fratelli(const Nodo_Visibile* nodo) const {
        return nodo->Parent ? nodo->Parent->Figli : albero_.Primo_Livello();
    }
    bool Ultimo(const Nodo_Visibile* nodo) const { return nodo->Key == Fratelli(nodo).back()->Key; }
    Nodo_Visibile* Next(const Nodo_Visibile* nodo) const {
        return Fratelli(nodo)[static_cast<size_t>(nodo->Riga) + 1];
    }

    bool Ricorsivo(Nodo_Visibile* nodo, Nodo_Visibile* partenza, const QString& testo, bool primo) {
        if (primo)
            contatore_ = 0;
        if (contatore_ >= 2) {
            albero_.Seleziona(albero_.Primo_Livello().front());
            return true;
        }
        if ((nodo != partenza || !primo) && nodo->Text == testo) {
            albero_.Seleziona(nodo);
            Trovati.append(nodo->Key);
            ++contatore_;
            return true;
        }
        if (!nodo->Figli.empty() && Ricorsivo(nodo->Figli.front(), partenza, testo, false))
            return true;
        if (!Ultimo(nodo) && Ricorsivo(Next(nodo), partenza, testo, false))
            return true;
        while (true) {
            if (!Albero_Visibile::FullPath(*nodo).contains(u'\\')) {
                ++contatore_;
                return Ricorsivo(Fratelli(nodo).front(), partenza, testo, false);
            }
            if (!Ultimo(nodo->Parent))
                return Ricorsivo(Next(nodo->Parent), partenza, testo, false);
            nodo = nodo->Parent;
        }
    }

    Albero_Visibile& albero_;
    int contatore_ = 0;
};

QStringList Cerca(Albero_Visibile& albero, const QString& testo) {
    QStringList trovati;
    Cerca_Nodo_Albero(albero, testo, [&](Nodo_Visibile& nodo) {
        EXPECT_EQ(albero.SelectedItem(), &nodo);
        trovati.append(nodo.Key);
    });
    return trovati;
}

QString Selezione(const Albero_Visibile& albero) {
    return albero.SelectedItem() ? albero.SelectedItem()->Key : QString();
}

TEST(Cerca_Nodo_Albero, AgreesWithItsRulesOnRandomTrees) {
    std::mt19937 caso(7);
    const auto fino = [&caso](size_t n) { return static_cast<size_t>(caso() % n); };
    const QStringList testi = {"a", "b", "c", "assente"};
    for (int prova = 0; prova < 2000; ++prova) {
        Albero_Visibile nostro, regole;
        const size_t nodi = fino(10);
        for (size_t i = 0; i < nodi; ++i) {
            const QString key = u"P_%1"_qs.arg(i), testo = testi[static_cast<qsizetype>(fino(3))];
            const size_t padre = fino(i + 1);
            for (Albero_Visibile* albero : {&nostro, &regole})
                albero->Add(padre == i ? nullptr : albero->Nodo(u"P_%1"_qs.arg(padre)), key, testo);
        }
        if (nodi > 0 && fino(3) > 0) {
            const QString partenza = u"P_%1"_qs.arg(fino(nodi));
            nostro.Seleziona(nostro.Nodo(partenza));
            regole.Seleziona(regole.Nodo(partenza));
        }
        Ricerca_Per_Regole attesa(regole);
        for (int passo = 0; passo < 4; ++passo) {
            const QString testo = testi[static_cast<qsizetype>(fino(4))];
            attesa.Trovati.clear();
            attesa.Cerca(testo);
            ASSERT_EQ(Cerca(nostro, testo), attesa.Trovati) << "tree " << prova << ", step " << passo;
            ASSERT_EQ(Selezione(nostro), Selezione(regole)) << "tree " << prova << ", step " << passo;
        }
    }
}

TEST(Cerca_Nodo_Albero, StepsThroughNodesOfTheSameName) {
    Albero_Visibile albero;
    albero.Add(&albero.Add(nullptr, "G_1", "motore"), "P_1", "filtro");
    Nodo_Visibile& gruppo = albero.Add(nullptr, "G_2", "cambio");
    albero.Add(&gruppo, "P_2", "filtro");
    albero.Add(&gruppo, "P_3", "pompa");
    EXPECT_EQ(Cerca(albero, ""), QStringList());
    EXPECT_FALSE(albero.Albero_Ha_Selezione()) << "nothing is searched for an empty text";
    for (const char* atteso : {"P_1", "P_2", "P_1"})
        EXPECT_EQ(Cerca(albero, "filtro"), QStringList(atteso));
    EXPECT_TRUE(gruppo.Expanded) << "a node found is made visible";
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Cerca(albero, "pompa"), QStringList("P_3"))
            << "the starting node is found on the way round";
    for (const char* testo : {"Filtro", "filt"}) {
        EXPECT_EQ(Cerca(albero, testo), QStringList());
        EXPECT_EQ(Selezione(albero), "G_1") << "a text of no node ends on the first one";
    }
}

TEST(Cerca_Nodo_Albero, WideAndDeepTreesAreWalkedToTheirEnd) {
    Albero_Visibile largo, profondo;
    Nodo_Visibile* padre = nullptr;
    for (int i = 0; i < 100'000; ++i) {
        largo.Add(nullptr, u"P_%1"_qs.arg(i), "a");
        if (i < 20'000)
            padre = &profondo.Add(padre, u"P_%1"_qs.arg(i), "a");
    }
    largo.Add(nullptr, "P_ultimo", "b");
    profondo.Add(padre, "P_ultimo", "b");
    for (Albero_Visibile* albero : {&largo, &profondo}) {
        EXPECT_EQ(Cerca(*albero, "b"), QStringList("P_ultimo"));
        EXPECT_EQ(Cerca(*albero, "assente"), QStringList());
        EXPECT_EQ(Selezione(*albero), u"P_0");
    }
}

}  // namespace
