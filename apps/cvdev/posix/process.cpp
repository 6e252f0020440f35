#include "process.h"

namespace cvdev {

std::vector<std::string> start(int count, char** values) {
    return {values + 1, values + count};
}

}  // namespace cvdev
