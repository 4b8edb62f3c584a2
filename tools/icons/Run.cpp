#include "Run.h"

#include <exception>
#include <ostream>

#include "ContactSheet.h"
#include "Files.h"
#include "IconFiles.h"
#include "IconSet.h"

namespace icons {

int run(const std::vector<std::string>& arguments, std::ostream& errors) {
  const bool wantsSheet = arguments.size() == 3 && arguments[1] == "--sheet";
  if (!wantsSheet && arguments.size() != 2) {
    errors << "usage: icon-files LIST RESOURCES | icon-files LIST --sheet FILE.png\n";
    return 2;
  }
  try {
    const std::vector<DrawnIcon> set = readIconSet(arguments[0]);
    if (wantsSheet) {
      writeFile(arguments[2], drawContactSheet(set));
    } else {
      writeIconFiles(set, arguments[1]);
    }
    return 0;
  } catch (const std::exception& fault) {
    errors << "icon-files: " << fault.what() << "\n";
    return 1;
  }
}

}  // namespace icons
