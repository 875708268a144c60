#include <gmock/gmock.h>

#include "../base/righe.h"
#include "core/navigation/albero_visibile.h"

namespace {

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

TEST(Cerca_Nodo_Albero, GoesDownThenOnThenUpAndRound) {
    Albero_Visibile albero;
    for (const QStringList& nodo :
         Righe("P_1==a|P_2=P_1=b|P_3=P_1=c|P_4=P_3=a|P_5=P_3=b|P_6=P_1=b|P_7==b|P_8=P_7=a|P_9==c"))
        albero.Add(albero.Nodo(nodo[1]), nodo[0], nodo[2]);
    // The start, the text, the nodes found one after the other.
    for (const QStringList& caso : Righe("P_1=b=P_2 P_5 P_6 P_7 P_2|P_2=a=P_4 P_8 P_1 P_4|P_8=c=P_9 P_3 "
                                         "P_9|P_9=a=P_1|P_4=b=P_5|P_6=c=P_9")) {
        albero.Seleziona(albero.Nodo(caso[0]));
        for (const QString& atteso : caso[2].split(' '))
            EXPECT_EQ(Cerca(albero, caso[1]), QStringList(atteso)) << qPrintable(caso.join('='));
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
        EXPECT_EQ(Cerca(albero, "pompa"), QStringList("P_3")) << "found again on the way round";
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
