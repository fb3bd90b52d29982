// Where the manual is looked for.
#include "frame/manual.h"

#include "base/files.h"

namespace frame {

void openManual(const settings::Paths& paths, base::Platform& platform) {
  const std::string shopsOwn = paths.manual();
  const std::string file = base::FileExists(shopsOwn) ? shopsOwn : platform.ownFile("Anleitung.html");
  if (file.empty()) throw base::fileFailure(base::ErrorNumber::fileNotFound, shopsOwn);
  platform.openFile(file);
}

}  // namespace frame
