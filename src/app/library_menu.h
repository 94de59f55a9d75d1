#pragma once

namespace coinlet {

struct Context;

/// Binds the entries of the Library menu: each gives its hint, if it has one, and opens its dialog.
void BindLibraryMenu(Context& context);

}  // namespace coinlet
