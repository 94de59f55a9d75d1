#pragma once

#include <QImage>

#include <vector>

namespace coinlet::test {

/// Where the words of one line of text stand: the middle column of each, from the left.
std::vector<int> TextColumns(const QImage& line);
/// Where the lines of text in a menu stand: the middle row of each, from the top. Rules are no text.
std::vector<int> TextRows(const QImage& menu);

}  // namespace coinlet::test
