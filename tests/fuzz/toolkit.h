#pragma once

namespace coinlet::test {

/// From now on the toolkit says nothing of what it finds wrong with a file.
void SilenceToolkit();

/// Starts the toolkit without a screen, once, for readers that need its fonts. It says nothing of what it
/// finds wrong with a file, and stays until the end of the process.
void StartToolkit();

}  // namespace coinlet::test
