#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

#include "cvdeveloper/application.h"

namespace {

// The same functions of the library as the module's, bound with pybind11.
class Peer {
  public:
    [[nodiscard]] std::string version() const { return application_->GetVersion(); }
    [[nodiscard]] bool is_like(std::string_view text, std::string_view pattern) const {
        return tools_->vbLike(text, pattern);
    }

  private:
    cvdeveloper::Ref<cvdeveloper::Application> application_ =
        cvdeveloper::make_object<cvdeveloper::Application>();
    cvdeveloper::Ref<cvdeveloper::clsTools> tools_ =
        cvdeveloper::make_object<cvdeveloper::clsTools>();
};

}  // namespace

PYBIND11_MODULE(pybind_peer, module) {
    pybind11::class_<Peer>(module, "Peer")
        .def(pybind11::init<>())
        .def("GetVersion", &Peer::version)
        .def("vbLike", &Peer::is_like, pybind11::arg("strText"), pybind11::arg("strPattern"));
}
