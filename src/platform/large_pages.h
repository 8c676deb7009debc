#pragma once

namespace tamrikon {

/// Asks the system to hand out the memory of this process in large pages, and keeps what is freed
/// for later. For a short run that fills much memory once: there, fetching it page by page takes
/// more time than many a step of the work. To be called first in `main`. Does nothing where the
/// system has no such pages or not enough memory to set aside.
void preferLargePages();

}  // namespace tamrikon
