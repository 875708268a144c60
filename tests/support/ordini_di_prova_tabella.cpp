// The worked orders. Each figure is worked out by hand; where it isn't plain price times quantity, the line
// above says how. The columns: remove, product, reference, code, price, discount, quantity, note, total.

#include "support/ordini_di_prova.h"

namespace {

using P = Passo_Ordine;

P Aggiungi(const char* codice, const char* riferimento, const char* prodotto = "P_1") {
    return {P::Aggiungi, prodotto, codice, riferimento};
}
P Oggetto(const char* nome, const char* scelto = "") {
    return {P::Oggetto, "P_1", nome, scelto};
}
P Quantita(const char* riga, const char* testo) {
    return {P::Quantita, "P_1", riga, testo};
}
P Nota(const char* riga, const char* testo) {
    return {P::Nota, "P_1", riga, testo};
}
P Togli(const char* riga) {
    return {P::Togli, "P_1", riga, ""};
}

const QString SENZA_SCONTO = "Sconto = () %";

/// Rows of an order whose user has no discount.
QStringList Senza_Sconto(QStringList righe, const char* totale) {
    return righe << QString("Totale = ") + totale << SENZA_SCONTO;
}
/// One line of part A, typed quantities and all.
QStringList Una_A(const char* quantita, const char* totale) {
    return Senza_Sconto({QString("|Uno|1|A|10.00|0|%1||%2").arg(quantita, totale)}, totale);
}
QStringList Una_B(const char* quantita, const char* totale) {
    return Senza_Sconto({QString("|Uno|2|B|2.50|0|%1||%2").arg(quantita, totale)}, totale);
}
QStringList Una(const char* riga, const char* totale) {
    return Senza_Sconto({QString(riga)}, totale);
}

void Aggiunte(std::vector<Ordine_Di_Prova>& o) {
    const Variante v = Variante::Libera;
    o.push_back({"one part", v, {Aggiungi("A", "1")}, Una_A("1", "10.00")});
    o.push_back(
        {"the same row twice is one line", v, {Aggiungi("A", "1"), Aggiungi("A", "1")}, Una_A("2", "20.00")});
    o.push_back({"a step of 5", v, {Aggiungi("B", "2")}, Una_B("5", "12.50")});
    o.push_back({"two steps of 5", v, {Aggiungi("B", "2"), Aggiungi("B", "2")}, Una_B("10", "25.00")});
    // 2.5 and 3,5 are rounded, halves to the even number: 2 x 4 and 4 x 4.
    o.push_back({"a step of 2.5 adds 2", v, {Aggiungi("S", "8")}, Una("|Uno|8|S|4.00|0|2||8.00", "8.00")});
    o.push_back(
        {"a step of 3,5 adds 4", v, {Aggiungi("S3", "9")}, Una("|Uno|9|S3|4.00|0|4||16.00", "16.00")});
    o.push_back(
        {"a step of 0 adds nothing", v, {Aggiungi("Z", "10")}, Una("|Uno|10|Z|4.00|0|0||0.00", "0.00")});
    o.push_back({"a step beyond 16 bits leaves the line at 0",
                 v,
                 {Aggiungi("ENORME", "25")},
                 Una("|Uno|25|ENORME|1.00|0|0||0.00", "0.00"),
                 {},
                 {"Overflow"}});
    // Outside the product: the step is the pack of the master, 3 x 6, and the reference is "-".
    o.push_back(
        {"a part of the master", v, {Aggiungi("SOLO", "-")}, Una("|Uno|-|SOLO|6.00|0|3||18.00", "18.00")});
    o.push_back(
        {"a part without reference", v, {Aggiungi("W", "-")}, Una("|Uno|-|W|3.00|0|1||3.00", "3.00")});
    o.push_back({"an unknown code shows nothing", v, {Aggiungi("X", "1")}, {}});
    o.push_back({"an unknown code beside a known one",
                 v,
                 {Aggiungi("X", "1"), Aggiungi("A", "1")},
                 Una_A("1", "10.00")});
    o.push_back({"two references are two lines",
                 v,
                 {Aggiungi("A", "1"), Aggiungi("A", "40")},
                 Senza_Sconto({"|Uno|1|A|10.00|0|1||10.00", "|Uno|40|A|10.00|0|1||10.00"}, "20.00")});
    o.push_back({"two products are two lines",
                 v,
                 {Aggiungi("A", "1"), Aggiungi("A", "1", "P_2")},
                 Senza_Sconto({"|Uno|1|A|10.00|0|1||10.00", "|Due|1|A|10.00|0|1||10.00"}, "20.00")});
    o.push_back({"quotes in a code", v, {Aggiungi("O'R", "16")}, Una("|Uno|16|O'R|1.00|0|1||1.00", "1.00")});
    o.push_back({"the name of an object that isn't there", v, {Aggiungi("A", "CODICI#$#A")}, {}});
    o.push_back({"neither reference nor code", v, {Aggiungi("", "-"), Aggiungi("A", "")}, {}});

    o.push_back({"an object", v, {Oggetto("1")}, Una_A("1", "10.00")});
    o.push_back({"an object by its reference", v, {Oggetto("ASSOCIAZIONE#$#1")}, Una_A("1", "10.00")});
    o.push_back(
        {"an object by its code", v, {Oggetto("CODICI#$#W")}, Una("|Uno|-|W|3.00|0|1||3.00", "3.00")});
    o.push_back(
        {"an object and its row are one line", v, {Oggetto("1"), Aggiungi("A", "1")}, Una_A("2", "20.00")});
    // No money at all, so no totals.
    o.push_back({"an object without a component", v, {Oggetto("99")}, {"|Uno|99|-|-|0|1||-"}});
    o.push_back({"totals leave it out",
                 v,
                 {Oggetto("99"), Aggiungi("A", "1")},
                 Senza_Sconto({"|Uno|99|-|-|0|1||-", "|Uno|1|A|10.00|0|1||10.00"}, "10.00")});
    o.push_back(
        {"one of several components", v, {Oggetto("40", "B")}, Una("|Uno|40|B|2.50|0|1||2.50", "2.50")});
    o.push_back({"none of several components", v, {Oggetto("40")}, {}});
    o.push_back({"an object without a name", v, {Oggetto("  ")}, {}});
}

void Quantita_Libere(std::vector<Ordine_Di_Prova>& o) {
    const auto ordine = [&o](const char* nome, std::vector<P> passi, const QStringList& righe) {
        o.push_back({nome, Variante::Libera, std::move(passi), righe});
    };
    const P a = Aggiungi("A", "1");
    ordine("typed 3", {a, Quantita("A-1", "3")}, Una_A("3", "30.00"));
    ordine("typed with a comma", {a, Quantita("A-1", "2,5")}, Una_A("2.5", "25.00"));
    ordine("typed with a point", {a, Quantita("A-1", "2.5")}, Una_A("2.5", "25.00"));
    // Nothing, a lone sign, 0 and digits of another script are all 0, and 0 becomes 1.
    for (const char* testo : {"", "-", "0", "\xD9\xA3", "abc"})
        ordine(testo, {a, Quantita("A-1", "4"), Quantita("A-1", testo)}, Una_A("1", "10.00"));
    // A small "e" ends the digits: 1.
    ordine("typed 1e9", {a, Quantita("A-1", "4"), Quantita("A-1", "1e9")}, Una_A("1", "10.00"));
    ordine("typed 1E3", {a, Quantita("A-1", "1E3")}, Una_A("1000", "10000.00"));
    ordine("typed -3", {a, Quantita("A-1", "-3")}, Una_A("-3", "-30.00"));
    // A leading "+" counts as a minus.
    ordine("typed +3", {a, Quantita("A-1", "+3")}, Una_A("-3", "-30.00"));
    ordine("typed 3 pz", {a, Quantita("A-1", "3 pz")}, Una_A("3", "30.00"));
    ordine("below the step", {Aggiungi("B", "2"), Quantita("B-2", "3")}, Una_B("3", "7.50"));
    ordine("no multiple of the step", {Aggiungi("B", "2"), Quantita("B-2", "7")}, Una_B("7", "17.50"));
    ordine("above a step of 0", {Aggiungi("Z", "10"), Quantita("Z-10", "4")},
           Una("|Uno|10|Z|4.00|0|4||16.00", "16.00"));
    ordine("an add after a typed quantity", {a, Quantita("A-1", "2,5"), a}, Una_A("3.5", "35.00"));
    ordine("no such line", {a, Quantita("A-2", "9"), Nota("B-1", "x"), Togli("A-2")}, Una_A("1", "10.00"));
    ordine("a note", {a, Nota("A-1", "urge, \"Dell'Orto\" 5%")},
           Una("|Uno|1|A|10.00|0|1|urge, \"Dell'Orto\" 5%|10.00", "10.00"));
    ordine("a note of an object", {Oggetto("99"), Nota("NO_CODE-99", "quale?")},
           {"|Uno|99|-|-|0|1|quale?|-"});
    ordine("removed", {a, Aggiungi("B", "2"), Togli("A-1")}, Una_B("5", "12.50"));
    ordine("all removed", {a, Togli("A-1")}, {});
    ordine("added again after removal", {a, a, Nota("A-1", "x"), Togli("A-1"), a}, Una_A("1", "10.00"));
}

void Quantita_Obbligate(std::vector<Ordine_Di_Prova>& o) {
    const auto ordine = [&o](const char* nome, const char* testo, const char* quantita, const char* totale,
                             QStringList messaggi = {}) {
        o.push_back({nome,
                     Variante::Obbligata,
                     {Aggiungi("B", "2"), Quantita("B-2", testo)},
                     Una_B(quantita, totale),
                     {},
                     std::move(messaggi)});
    };
    ordine("enforced: 7 becomes 10", "7", "10", "25.00");
    ordine("enforced: 10 stays", "10", "10", "25.00");
    ordine("enforced: 11 becomes 15", "11", "15", "37.50");
    // 7.5 is judged as 8, 10.4 as 10, which is a multiple.
    ordine("enforced: 7.5 becomes 10", "7.5", "10", "25.00");
    ordine("enforced: 10.4 stays", "10,4", "10.4", "26.00");
    ordine("enforced: 3 becomes the step", "3", "5", "12.50");
    ordine("enforced: 0 becomes the step", "0", "5", "12.50");
    ordine("enforced: nothing becomes the step", "", "5", "12.50");
    ordine("enforced: -20 becomes the step", "-20", "5", "12.50");
    ordine("enforced: too large to be divided", "1E10", "5", "12.50", {"Overflow"});
    o.push_back({"enforced: a step of 0 can't divide",
                 Variante::Obbligata,
                 {Aggiungi("Z", "10"), Quantita("Z-10", "4"), Aggiungi("A", "1")},
                 Senza_Sconto({"|Uno|10|Z|4.00|0|0||0.00", "|Uno|1|A|10.00|0|1||10.00"}, "10.00"),
                 {},
                 {"Division by zero"}});
}

void Sconti(std::vector<Ordine_Di_Prova>& o) {
    const auto ordine = [&o](const char* nome, std::vector<P> passi, const char* riga, const char* totale) {
        o.push_back({nome, Variante::Libera, std::move(passi), Una(riga, totale)});
    };
    // 100 x 0.9
    ordine("a general discount", {Aggiungi("D", "4")}, "|Uno|4|D|100.00|(10) %|1||90.00", "90.00");
    // 100 x 0.9 x 0.95
    ordine("two keys", {Aggiungi("G", "7")}, "|Uno|7|G|100.00|(10+5) %|1||85.50", "85.50");
    ordine("below a range", {Aggiungi("E", "5")}, "|Uno|5|E|100.00|(0) %|5||500.00", "500.00");
    // 5 percent from 10 to 49, both included; without a general discount the text doesn't grow.
    ordine("at the lower end", {Aggiungi("E", "5"), Quantita("E-5", "10")},
           "|Uno|5|E|100.00|(0) %|10||950.00", "950.00");
    ordine("at the upper end", {Aggiungi("E", "5"), Quantita("E-5", "49")},
           "|Uno|5|E|100.00|(0) %|49||4655.00", "4655.00");
    ordine("between two ranges", {Aggiungi("E", "5"), Quantita("E-5", "49.5")},
           "|Uno|5|E|100.00|(0) %|49.5||4950.00", "4950.00");
    // 8 percent from 50: 5000 x 0.92
    ordine("the second range", {Aggiungi("E", "5"), Quantita("E-5", "50")},
           "|Uno|5|E|100.00|(0) %|50||4600.00", "4600.00");
    // 10 percent on 200 to 400, both included; there is a general discount, of 0, so the text grows.
    ordine("a total at the lower end", {Aggiungi("F", "6")}, "|Uno|6|F|100.00|(10) %|2||180.00", "180.00");
    ordine("a total at the upper end", {Aggiungi("F", "6"), Quantita("F-6", "4")},
           "|Uno|6|F|100.00|(10) %|4||360.00", "360.00");
    ordine("a total beyond", {Aggiungi("F", "6"), Quantita("F-6", "5")}, "|Uno|6|F|100.00|(0) %|5||500.00",
           "500.00");
    // 1000 x 0.9 x 0.95 x 0.98
    ordine("general, quantity and total", {Aggiungi("MISTO", "24")},
           "|Uno|24|MISTO|100.00|(10+5+2) %|10||837.90", "837.90");
    ordine("general alone", {Aggiungi("MISTO", "24"), Quantita("MISTO-24", "100")},
           "|Uno|24|MISTO|100.00|(10) %|100||9000.00", "9000.00");
    // The factor 0 says "no discount".
    ordine("a hundred percent is no discount", {Aggiungi("CENTO", "17")},
           "|Uno|17|CENTO|100.00|(100) %|1||100.00", "100.00");
    // And the next one begins the chain anew: 0.9.
    ordine("a hundred percent and ten", {Aggiungi("CENTO10", "18")},
           "|Uno|18|CENTO10|100.00|(100+10) %|1||90.00", "90.00");
    ordine("F ends the rows of a key", {Aggiungi("FINE", "19")}, "|Uno|19|FINE|100.00|(10) %|1||90.00",
           "90.00");
    // 0.9 x 0.8
    ordine("without F all rows count", {Aggiungi("TUTTI", "20")}, "|Uno|20|TUTTI|100.00|(10+20) %|1||72.00",
           "72.00");
    ordine("another market's discount", {Aggiungi("ALTRO", "21")}, "|Uno|21|ALTRO|100.00|(0) %|1||100.00",
           "100.00");
    // What can't be read ends the chain behind D10.
    ordine("a malformed percentage", {Aggiungi("GUASTO", "22")}, "|Uno|22|GUASTO|100.00|(10) %|1||90.00",
           "90.00");
    ordine("the first entry of a market counts", {Aggiungi("DUE", "23")},
           "|Uno|23|DUE|100.00|(10) %|1||90.00", "90.00");
}

void Collegati(std::vector<Ordine_Di_Prova>& o) {
    const Variante v = Variante::Libera;
    const P kit = Aggiungi("KIT", "30");
    // L brings P, and P the kit again, which is dropped. 50 + 2x3 + 0.5x7.7 + 4x1.1
    o.push_back({"a kit in a circle",
                 v,
                 {kit},
                 Senza_Sconto({"|Uno|30|KIT|50.00|0|1||50.00", " |Uno|^|L|3.00|0|2||6.00",
                               " |Uno|^|M|7.70|0|0.5||3.85", " |Uno|^|P|1.10|0|4||4.40"},
                              "64.25")});
    // All times 3: 150 + 18 + 11.55 + 13.2
    o.push_back({"three kits",
                 v,
                 {kit, Quantita("KIT-30", "3")},
                 Senza_Sconto({"|Uno|30|KIT|50.00|0|3||150.00", " |Uno|^|L|3.00|0|6||18.00",
                               " |Uno|^|M|7.70|0|1.5||11.55", " |Uno|^|P|1.10|0|12||13.20"},
                              "192.75")});
    o.push_back({"a kit that names itself",
                 v,
                 {Aggiungi("SE", "34")},
                 Senza_Sconto({"|Uno|34|SE|5.00|0|1||5.00", " |Uno|^|A|10.00|0|1||10.00"}, "15.00")});
    // 100 x 0.9 x 2
    o.push_back(
        {"a linked part with a discount",
         v,
         {Aggiungi("SCONTATO", "35")},
         Senza_Sconto({"|Uno|35|SCONTATO|1.00|0|1||1.00", " |Uno|^|D|100.00|(10) %|2||180.00"}, "181.00")});
    // The unknown part shows as the kit itself: 9 + 3x9
    o.push_back({"an unknown linked part",
                 v,
                 {Aggiungi("IGNOTO", "36")},
                 Senza_Sconto({"|Uno|36|IGNOTO|9.00|0|1||9.00", " |Uno|^|IGNOTO|9.00|0|3||27.00"}, "36.00")});
    // No factor is 0; blanks don't count: 1 + 0 + 3x7.7
    o.push_back({"a linked part without factor",
                 v,
                 {Aggiungi("NUDO", "37")},
                 Senza_Sconto({"|Uno|37|NUDO|1.00|0|1||1.00", " |Uno|^|A|10.00|0|0||0.00",
                               " |Uno|^|M|7.70|0|3||23.10"},
                              "24.10")});
    o.push_back({"a linked part isn't removed",
                 v,
                 {kit, Togli("L-^"), Aggiungi("A", "1"), Togli("KIT-30")},
                 Una_A("1", "10.00")});
}

void Prezzi(std::vector<Ordine_Di_Prova>& o) {
    const Variante v = Variante::Libera;
    o.push_back(
        {"a price with a comma", v, {Aggiungi("V", "11")}, Una("|Uno|11|V|12.50|0|1||12.50", "12.50")});
    o.push_back(
        {"a price in words", v, {Aggiungi("R", "12")}, Una("|Uno|12|R|a richiesta|0|1||0.00", "0.00")});
    o.push_back({"no price", v, {Aggiungi("N", "13")}, Una("|Uno|13|N||0|1||0.00", "0.00")});
    // 0.335 shows as 0.34, 3 x 0.335 = 1.005 as 1.01: halves go away from zero.
    o.push_back({"a half", v, {Aggiungi("C", "3")}, Una("|Uno|3|C|0.34|0|1||0.34", "0.34")});
    o.push_back({"a half of a product",
                 v,
                 {Aggiungi("C", "3"), Quantita("C-3", "3")},
                 Una("|Uno|3|C|0.34|0|3||1.01", "1.01")});
    // The sum adds what the rows show: 0.34 + 0.34, and not 0.67. P_2 hasn't the part, so "-" shows.
    o.push_back({"the sum of rounded rows",
                 v,
                 {Aggiungi("C", "3"), Aggiungi("C", "3", "P_2")},
                 Senza_Sconto({"|Uno|3|C|0.34|0|1||0.34", "|Due|-|C|0.34|0|1||0.34"}, "0.68")});
    // 16777216 + 1 has no single precision number of its own.
    o.push_back({"single precision",
                 v,
                 {Aggiungi("GRANDE", "14"), Aggiungi("UNO", "15")},
                 Senza_Sconto({"|Uno|14|GRANDE|16777216.00|0|1||16777216.00", "|Uno|15|UNO|1.00|0|1||1.00"},
                              "16777216.00")});
    o.push_back({"no prices, no totals",
                 Variante::Senza_Prezzi,
                 {Aggiungi("A", "1"), Aggiungi("D", "4")},
                 {"|Uno|1|A|0|1|", "|Uno|4|D|(10) %|1|"}});

    const Variante due = Variante::Due_Prezzi;
    // 0.9 x 0.95 on both: 85.5 and 68.4
    o.push_back({"two prices, two discounts",
                 due,
                 {Aggiungi("H", "2", "P_2")},
                 Senza_Sconto({"|Due|2|H|100.00|80|(10) %|(5) %|1||85.50|68"}, "85.50; 68").mid(0, 2)
                     << "Sconto = () %; () %"});
    // The second column has no discount and takes that of the first back.
    o.push_back(
        {"a second column without a discount",
         due,
         {Aggiungi("H0", "3", "P_2")},
         {"|Due|3|H0|100.00|81|(10) %|(0) %|1||100.00|81", "Totale = 100.00; 81", "Sconto = () %; () %"}});
    o.push_back({"no second price",
                 due,
                 {Aggiungi("HN", "4", "P_2")},
                 {"|Due|4|HN|100.00||(10) %|(5) %|1||85.50|0", "Totale = 85.50; 0", "Sconto = () %; () %"}});
    // 85.5 x 0.9 = 76.95, 68 x 0.9 = 61.2
    o.push_back({"two net totals",
                 due,
                 {Aggiungi("H", "2", "P_2")},
                 {"|Due|2|H|100.00|80|(10) %|(5) %|1||85.50|68", "Totale = 85.50; 68",
                  "Sconto = (10) %; (10) %", "Netto = 76.95; 61"},
                 "dieci"});
}

void Utenti(std::vector<Ordine_Di_Prova>& o) {
    const auto ordine = [&o](const char* nome, const char* login, const char* quantita, const char* totale,
                             const char* sconto, const char* netto, Variante v = Variante::Libera) {
        QStringList righe{QString("|Uno|1|A|10.00|0|%1||%2").arg(quantita, totale),
                          QString("Totale = ") + totale, QString("Sconto = (%1) %").arg(sconto)};
        if (netto)
            righe += QString("Netto = ") + netto;
        o.push_back({nome, v, {Aggiungi("A", "1"), Quantita("A-1", quantita)}, righe, login});
    };
    ordine("a user's key", "dieci", "2", "20.00", "10", "18.00");
    ordine("a group's key", "gruppo", "2", "20.00", "5", "19.00");
    // 20 x 0.9 x 0.95
    ordine("two groups' keys", "gruppi", "2", "20.00", "10+5", "17.10");
    ordine("the user's key before the group's", "proprio", "2", "20.00", "10", "18.00");
    ordine("the catalogue's key", "", "2", "20.00", "10", "18.00", Variante::Sconto_Base);
    ordine("the group's key before the catalogue's", "gruppo", "2", "20.00", "5", "19.00",
           Variante::Sconto_Base);
    ordine("a group without keys has the catalogue's", "nessuno", "2", "20.00", "10", "18.00",
           Variante::Sconto_Base);
    ordine("a group without keys", "nessuno", "2", "20.00", "", nullptr);
    ordine("a hundred percent gives no net total", "cento", "2", "20.00", "100", nullptr);
    // The range is that of all quantities together: 100 x 0.95
    ordine("a discount by quantity", "quanti", "10", "100.00", "0", "95.00");
    ordine("too few for it", "quanti", "9", "90.00", "0", nullptr);
    // 200 x 0.9
    ordine("a discount by total", "totale", "20", "200.00", "10", "180.00");
    ordine("too little for it", "totale", "19", "190.00", "0", nullptr);
}

}  // namespace

std::vector<Ordine_Di_Prova> Ordini_Di_Prova() {
    std::vector<Ordine_Di_Prova> ordini;
    Aggiunte(ordini);
    Quantita_Libere(ordini);
    Quantita_Obbligate(ordini);
    Sconti(ordini);
    Collegati(ordini);
    Prezzi(ordini);
    Utenti(ordini);
    return ordini;
}
