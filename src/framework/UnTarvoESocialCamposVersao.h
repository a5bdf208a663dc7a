#pragma once

namespace tarvo {

/// The version of the library, "1.0.0"; of the first two numbers the names and layouts of its classes hold.
const char* VersaoDaBiblioteca();

} // namespace tarvo
