#pragma once

#include <QByteArray>
#include <QString>
#include <pugixml.hpp>
#include <string_view>

#include "canvas/limiti.h"

/// Reads the text of an SVG document into a tree. Entities are expanded, attributes that the document type
/// gives by default are set; comments, instructions and what isn't drawn are left out, so that the tree,
/// written out again, holds nothing that one parser could read otherwise than another. False with the reason
/// in `rifiuto`.
bool Leggi_Albero(const QByteArray& testo, const Limiti& limiti, pugi::xml_document& albero,
                  QString& rifiuto);

/// The tree as text, in UTF-8, without a document type.
QByteArray Testo_Di(const pugi::xml_document& albero);

/// An element's or attribute's name without namespace prefix.
std::string_view Nome_Locale(const char* nome);

/// The element that follows in document order inside `radice`; null behind the last one.
pugi::xml_node Seguente(const pugi::xml_node& radice, pugi::xml_node nodo);
