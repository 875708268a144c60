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
P Quantita(const QString& riga, const char* testo) {
    return {P::Quantita, "P_1", riga, testo};
}
P Nota(const char* riga, const char* testo) {
    return {P::Nota, "P_1", riga, testo};
}
P Togli(const char* riga) {
    return {P::Togli, "P_1", riga, ""};
}

/// Rows of an order whose user has no discount.
QStringList Senza_Sconto(QStringList righe, const QString& totale) {
    return righe << "Totale = " + totale << "Sconto = () %";
}
/// An order of one row, which ends with its total.
QStringList Una(const QString& riga) {
    return Senza_Sconto({riga}, riga.section(u'|', -1));
}

QStringList Una_A(const char* quantita, const char* totale) {
    return Una(QString("|Uno|1|A|10.00|0|%1||%2").arg(quantita, totale));
}
QStringList Una_B(const char* quantita, const char* totale) {
    return Una(QString("|Uno|2|B|2.50|0|%1||%2").arg(quantita, totale));
}

/// Adds orders in one catalogue.
struct Lista {
    std::vector<Ordine_Di_Prova>& ordini;
    Variante variante = Variante::Libera;

    void operator()(const char* nome, std::vector<P> passi, QStringList righe, QStringList messaggi = {},
                    const QString& login = {}) const {
        ordini.push_back({nome, variante, std::move(passi), std::move(righe), login, std::move(messaggi)});
    }
};

void Aggiunte(const Lista& ordine) {
    ordine("one part", {Aggiungi("A", "1")}, Una_A("1", "10.00"));
    ordine("the same row twice is one line", {Aggiungi("A", "1"), Aggiungi("A", "1")}, Una_A("2", "20.00"));
    ordine("a step of 5", {Aggiungi("B", "2")}, Una_B("5", "12.50"));
    ordine("two steps of 5", {Aggiungi("B", "2"), Aggiungi("B", "2")}, Una_B("10", "25.00"));
    // 2.5 and 3,5 are rounded, halves to the even number: 2 x 4 and 4 x 4.
    ordine("a step of 2.5 adds 2", {Aggiungi("S", "8")}, Una("|Uno|8|S|4.00|0|2||8.00"));
    ordine("a step of 3,5 adds 4", {Aggiungi("S3", "9")}, Una("|Uno|9|S3|4.00|0|4||16.00"));
    ordine("a step of 0 adds nothing", {Aggiungi("Z", "10")}, Una("|Uno|10|Z|4.00|0|0||0.00"));
    ordine("a step beyond 16 bits leaves the line at 0", {Aggiungi("ENORME", "25")},
           Una("|Uno|25|ENORME|1.00|0|0||0.00"), {"Overflow"});
    // Outside the product: the step is the pack of the master, 3 x 6, and the reference is "-".
    ordine("a part of the master", {Aggiungi("SOLO", "-")}, Una("|Uno|-|SOLO|6.00|0|3||18.00"));
    ordine("a part without reference", {Aggiungi("W", "-")}, Una("|Uno|-|W|3.00|0|1||3.00"));
    ordine("an unknown code shows nothing", {Aggiungi("X", "1")}, {});
    ordine("an unknown code beside a known one", {Aggiungi("X", "1"), Aggiungi("A", "1")},
           Una_A("1", "10.00"));
    ordine("two references are two lines", {Aggiungi("A", "1"), Aggiungi("A", "40")},
           Senza_Sconto({"|Uno|1|A|10.00|0|1||10.00", "|Uno|40|A|10.00|0|1||10.00"}, "20.00"));
    ordine("two products are two lines", {Aggiungi("A", "1"), Aggiungi("A", "1", "P_2")},
           Senza_Sconto({"|Uno|1|A|10.00|0|1||10.00", "|Due|1|A|10.00|0|1||10.00"}, "20.00"));
    ordine("quotes in a code", {Aggiungi("O'R", "16")}, Una("|Uno|16|O'R|1.00|0|1||1.00"));
    ordine("the name of an object that isn't there", {Aggiungi("A", "CODICI#$#A")}, {});
    ordine("neither reference nor code", {Aggiungi("", "-"), Aggiungi("A", "")}, {});

    ordine("an object", {Oggetto("1")}, Una_A("1", "10.00"));
    ordine("an object by its reference", {Oggetto("ASSOCIAZIONE#$#1")}, Una_A("1", "10.00"));
    ordine("an object by its code", {Oggetto("CODICI#$#W")}, Una("|Uno|-|W|3.00|0|1||3.00"));
    ordine("an object and its row are one line", {Oggetto("1"), Aggiungi("A", "1")}, Una_A("2", "20.00"));
    // No money at all, so no totals.
    ordine("an object without a component", {Oggetto("99")}, {"|Uno|99|-|-|0|1||-"});
    ordine("totals leave it out", {Oggetto("99"), Aggiungi("A", "1")},
           Senza_Sconto({"|Uno|99|-|-|0|1||-", "|Uno|1|A|10.00|0|1||10.00"}, "10.00"));
    ordine("one of several components", {Oggetto("40", "B")}, Una("|Uno|40|B|2.50|0|1||2.50"));
    ordine("none of several components", {Oggetto("40")}, {});
    ordine("an object without a name", {Oggetto("  ")}, {});
}

void Quantita_Libere(const Lista& ordine) {
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
           Una("|Uno|10|Z|4.00|0|4||16.00"));
    ordine("an add after a typed quantity", {a, Quantita("A-1", "2,5"), a}, Una_A("3.5", "35.00"));
    ordine("no such line", {a, Quantita("A-2", "9"), Nota("B-1", "x"), Togli("A-2")}, Una_A("1", "10.00"));
    ordine("a note", {a, Nota("A-1", "urge, \"Dell'Orto\" 5%")},
           Una("|Uno|1|A|10.00|0|1|urge, \"Dell'Orto\" 5%|10.00"));
    ordine("a note of an object", {Oggetto("99"), Nota("NO_CODE-99", "quale?")},
           {"|Uno|99|-|-|0|1|quale?|-"});
    ordine("removed", {a, Aggiungi("B", "2"), Togli("A-1")}, Una_B("5", "12.50"));
    ordine("all removed", {a, Togli("A-1")}, {});
    ordine("added again after removal", {a, a, Nota("A-1", "x"), Togli("A-1"), a}, Una_A("1", "10.00"));
}

void Quantita_Obbligate(const Lista& obbligata) {
    const auto ordine = [&](const char* nome, const char* testo, const char* quantita, const char* totale,
                            const QStringList& messaggi = {}) {
        obbligata(nome, {Aggiungi("B", "2"), Quantita("B-2", testo)}, Una_B(quantita, totale), messaggi);
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
    obbligata("enforced: a step of 0 can't divide",
              {Aggiungi("Z", "10"), Quantita("Z-10", "4"), Aggiungi("A", "1")},
              Senza_Sconto({"|Uno|10|Z|4.00|0|0||0.00", "|Uno|1|A|10.00|0|1||10.00"}, "10.00"),
              {"Division by zero"});
}

void Sconti(const Lista& lista) {
    const auto ordine = [&](const char* nome, const char* codice, const char* riferimento,
                            const char* quantita, const char* sconto, const char* totale) {
        const QString riga = "|Uno|%1|%2|100.00|(%3) %|%4||%5";
        lista(nome, {Aggiungi(codice, riferimento), Quantita(QString(codice) + u'-' + riferimento, quantita)},
              Una(riga.arg(riferimento, codice, sconto, quantita, totale)));
    };
    // 100 x 0.9
    ordine("a general discount", "D", "4", "1", "10", "90.00");
    // 100 x 0.9 x 0.95
    ordine("two keys", "G", "7", "1", "10+5", "85.50");
    ordine("below a range", "E", "5", "5", "0", "500.00");
    // 5 percent from 10 to 49, both included; without a general discount the text doesn't grow.
    ordine("at the lower end", "E", "5", "10", "0", "950.00");
    ordine("at the upper end", "E", "5", "49", "0", "4655.00");
    ordine("between two ranges", "E", "5", "49.5", "0", "4950.00");
    // 8 percent from 50: 5000 x 0.92
    ordine("the second range", "E", "5", "50", "0", "4600.00");
    // 10 percent on 200 to 400, both included; there is a general discount, of 0, so the text grows.
    ordine("a total at the lower end", "F", "6", "2", "10", "180.00");
    ordine("a total at the upper end", "F", "6", "4", "10", "360.00");
    ordine("a total beyond", "F", "6", "5", "0", "500.00");
    // 1000 x 0.9 x 0.95 x 0.98
    ordine("general, quantity and total", "MISTO", "24", "10", "10+5+2", "837.90");
    ordine("general alone", "MISTO", "24", "100", "10", "9000.00");
    // The factor 0 says "no discount".
    ordine("a hundred percent is no discount", "CENTO", "17", "1", "100", "100.00");
    // And the next one begins the chain anew: 0.9.
    ordine("a hundred percent and ten", "CENTO10", "18", "1", "100+10", "90.00");
    ordine("F ends the rows of a key", "FINE", "19", "1", "10", "90.00");
    // 0.9 x 0.8
    ordine("without F all rows count", "TUTTI", "20", "1", "10+20", "72.00");
    ordine("another market's discount", "ALTRO", "21", "1", "0", "100.00");
    // What can't be read ends the chain behind D10.
    ordine("a malformed percentage", "GUASTO", "22", "1", "10", "90.00");
    ordine("the first entry of a market counts", "DUE", "23", "1", "10", "90.00");
}

void Collegati(const Lista& ordine) {
    const P kit = Aggiungi("KIT", "30");
    // L brings P, and P the kit again, which is dropped. 50 + 2x3 + 0.5x7.7 + 4x1.1
    ordine("a kit in a circle", {kit},
           Senza_Sconto({"|Uno|30|KIT|50.00|0|1||50.00", " |Uno|^|L|3.00|0|2||6.00",
                         " |Uno|^|M|7.70|0|0.5||3.85", " |Uno|^|P|1.10|0|4||4.40"},
                        "64.25"));
    // All times 3: 150 + 18 + 11.55 + 13.2
    ordine("three kits", {kit, Quantita("KIT-30", "3")},
           Senza_Sconto({"|Uno|30|KIT|50.00|0|3||150.00", " |Uno|^|L|3.00|0|6||18.00",
                         " |Uno|^|M|7.70|0|1.5||11.55", " |Uno|^|P|1.10|0|12||13.20"},
                        "192.75"));
    ordine("a kit that names itself", {Aggiungi("SE", "34")},
           Senza_Sconto({"|Uno|34|SE|5.00|0|1||5.00", " |Uno|^|A|10.00|0|1||10.00"}, "15.00"));
    // 100 x 0.9 x 2
    ordine("a linked part with a discount", {Aggiungi("SCONTATO", "35")},
           Senza_Sconto({"|Uno|35|SCONTATO|1.00|0|1||1.00", " |Uno|^|D|100.00|(10) %|2||180.00"}, "181.00"));
    // The unknown part shows as the kit itself: 9 + 3x9
    ordine("an unknown linked part", {Aggiungi("IGNOTO", "36")},
           Senza_Sconto({"|Uno|36|IGNOTO|9.00|0|1||9.00", " |Uno|^|IGNOTO|9.00|0|3||27.00"}, "36.00"));
    // No factor is 0; blanks don't count: 1 + 0 + 3x7.7
    ordine("a linked part without factor", {Aggiungi("NUDO", "37")},
           Senza_Sconto(
               {"|Uno|37|NUDO|1.00|0|1||1.00", " |Uno|^|A|10.00|0|0||0.00", " |Uno|^|M|7.70|0|3||23.10"},
               "24.10"));
    ordine("a linked part isn't removed", {kit, Togli("L-^"), Aggiungi("A", "1"), Togli("KIT-30")},
           Una_A("1", "10.00"));
}

void Prezzi(const Lista& ordine, const Lista& senza_prezzi, const Lista& due) {
    ordine("a price with a comma", {Aggiungi("V", "11")}, Una("|Uno|11|V|12.50|0|1||12.50"));
    ordine("a price in words", {Aggiungi("R", "12")}, Una("|Uno|12|R|a richiesta|0|1||0.00"));
    ordine("no price", {Aggiungi("N", "13")}, Una("|Uno|13|N||0|1||0.00"));
    // 0.335 shows as 0.34, 3 x 0.335 = 1.005 as 1.01: halves go away from zero.
    ordine("a half", {Aggiungi("C", "3")}, Una("|Uno|3|C|0.34|0|1||0.34"));
    ordine("a half of a product", {Aggiungi("C", "3"), Quantita("C-3", "3")}, Una("|Uno|3|C|0.34|0|3||1.01"));
    // The sum adds what the rows show: 0.34 + 0.34, and not 0.67. P_2 hasn't the part, so "-" shows.
    ordine("the sum of rounded rows", {Aggiungi("C", "3"), Aggiungi("C", "3", "P_2")},
           Senza_Sconto({"|Uno|3|C|0.34|0|1||0.34", "|Due|-|C|0.34|0|1||0.34"}, "0.68"));
    // 16777216 + 1 has no single precision number of its own.
    ordine("single precision", {Aggiungi("GRANDE", "14"), Aggiungi("UNO", "15")},
           Senza_Sconto({"|Uno|14|GRANDE|16777216.00|0|1||16777216.00", "|Uno|15|UNO|1.00|0|1||1.00"},
                        "16777216.00"));
    senza_prezzi("no prices, no totals", {Aggiungi("A", "1"), Aggiungi("D", "4")},
                 {"|Uno|1|A|0|1|", "|Uno|4|D|(10) %|1|"});

    // 0.9 x 0.95 on both: 85.5 and 68.4
    due("two prices, two discounts", {Aggiungi("H", "2", "P_2")},
        {"|Due|2|H|100.00|80|(10) %|(5) %|1||85.50|68", "Totale = 85.50; 68", "Sconto = () %; () %"});
    // The second column has no discount and takes that of the first back.
    due("a second column without a discount", {Aggiungi("H0", "3", "P_2")},
        {"|Due|3|H0|100.00|81|(10) %|(0) %|1||100.00|81", "Totale = 100.00; 81", "Sconto = () %; () %"});
    due("no second price", {Aggiungi("HN", "4", "P_2")},
        {"|Due|4|HN|100.00||(10) %|(5) %|1||85.50|0", "Totale = 85.50; 0", "Sconto = () %; () %"});
    // 85.5 x 0.9 = 76.95, 68 x 0.9 = 61.2
    due("two net totals", {Aggiungi("H", "2", "P_2")},
        {"|Due|2|H|100.00|80|(10) %|(5) %|1||85.50|68", "Totale = 85.50; 68", "Sconto = (10) %; (10) %",
         "Netto = 76.95; 61"},
        {}, "dieci");
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
    const Lista libera{ordini};
    Aggiunte(libera);
    Quantita_Libere(libera);
    Quantita_Obbligate({ordini, Variante::Obbligata});
    Sconti(libera);
    Collegati(libera);
    Prezzi(libera, {ordini, Variante::Senza_Prezzi}, {ordini, Variante::Due_Prezzi});
    Utenti(ordini);
    return ordini;
}
