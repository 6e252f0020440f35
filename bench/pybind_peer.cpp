#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

namespace {

// As trivial as the measured method of the module.
class Peer {
  public:
    [[nodiscard]] std::string log_path() const { return path_; }
    void set_log_path(std::string_view path) { path_ = path; }
    [[nodiscard]] bool is_like(std::string_view text, std::string_view pattern) const {
        return text == pattern;
    }

  private:
    std::string path_;
};

}  // namespace

PYBIND11_MODULE(pybind_peer, module) {
    pybind11::class_<Peer>(module, "Peer")
        .def(pybind11::init<>())
        .def("GetVersion", &Peer::log_path)
        .def("vbLike", &Peer::is_like, pybind11::arg("strText"), pybind11::arg("strPattern"));
}
