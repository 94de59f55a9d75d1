#pragma once

namespace coinlet {

struct Context;
class FileListBox;
class Surface;

// What the print dialog sends to the current printer, laid out in twips on sheets of A4. A job changes
// nothing of the design.

/// Prints the design on the canvas with its side panel and, if wanted, its info text, each copy on a sheet of
/// its own. A number of copies below 1 prints nothing; there are at most 999.
void PrintDesign(const Context& context, double copies, bool withInfoText);

/// Prints all stored designs small, by their names. `files` and `picture` are for the job's own use; a file
/// that holds no picture is printed as the one before it.
void PrintAllDesigns(const Context& context, FileListBox& files, Surface& picture);

/// Prints all sheets of the clipart library, by their names, if the user wants so many pages. He can go on
/// with other things meanwhile. `files` and `picture` are as above.
void PrintAllCliparts(const Context& context, FileListBox& files, Surface& picture);

}  // namespace coinlet
