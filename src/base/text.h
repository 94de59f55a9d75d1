#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// Texts are UTF-8 inside the program and Windows-1252, one byte a character, in its files.
/// The five bytes that Windows-1252 leaves unassigned stand for the control characters of the same number, so
/// that all 256 bytes survive reading and writing. A character outside the page is written as "?"; a
/// malformed UTF-8 byte counts as such a character.
std::string FromCodePage(std::string_view bytes);
std::string ToCodePage(std::string_view utf8);

/// The characters of a UTF-8 text, each as a text of its own; malformed bytes stand alone.
std::vector<std::string> Characters(std::string_view utf8);

/// The letters of a UTF-8 text as a reader counts them: a character with the marks that stand on it, and the
/// characters that make up one pictogram. Put together they are the text.
std::vector<std::string> Graphemes(std::string_view utf8);

/// The UTF-8 form of one code point; one outside Unicode gives U+FFFD.
std::string Utf8(char32_t codePoint);

/// `text` without blanks (spaces) at both ends; tabs and line ends are no blanks here.
std::string_view TrimBlanks(std::string_view text);

/// `text` with its ASCII letters in lower case, and those of Latin-1 and Latin Extended-A too (É -> é).
std::string LowerCase(std::string_view utf8);

/// The order of sorted lists, the same on every desktop. Letters with accents stand beside their base letter
/// (é between e and f), joined ones as their letters (æ as ae), for Latin-1 and Latin Extended-A. Texts of
/// the same base letters are ordered by their accents, then by case, capitals first; only equal texts are
/// equal.
bool ComesBefore(std::string_view a, std::string_view b);

/// What stands before the first line break of a text, those in front of it passed over: what a field of one
/// line takes. Line breaks are CR, LF and the separators of lines and paragraphs of Unicode.
std::string_view FirstLine(std::string_view utf8);

/// The lines of a text; CR LF, LF and CR end a line. An end after the last line starts no further one.
std::vector<std::string> Lines(std::string_view text);

}  // namespace coinlet
