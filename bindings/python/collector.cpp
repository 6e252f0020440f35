#include "collector.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "python_object.h"

namespace cvdeveloper::python {

namespace {

// What can be reached from one object, with the shares counted that are held from inside.
class OwnedGraph final : public OwnedVisitor {
  public:
    explicit OwnedGraph(const RefCounted& root) {
        nodes_.push_back({.object = &root, .inside_owners = 1});  // the instance's own share
        for (current_ = 0; current_ < nodes_.size(); ++current_) {
            nodes_[current_].object->visit_owned(*this);
        }
        // Whatever an object with an outside owner owns lives on with it.
        for (std::size_t i = 0; i < nodes_.size(); ++i) {
            if (nodes_[i].object->owners() != nodes_[i].inside_owners) {
                keep(i);
            }
        }
    }

    void visit(const RefCounted* object) override {
        if (object == nullptr) {
            return;
        }
        auto found = std::ranges::find(nodes_, object, &Node::object);
        if (found == nodes_.end()) {
            found = nodes_.insert(nodes_.end(), {.object = object});
        }
        ++found->inside_owners;
        nodes_[current_].owned.push_back(static_cast<std::size_t>(found - nodes_.begin()));
    }

    // The objects that only the root keeps alive.
    template <class Use>
    int each(Use use) const {
        for (const Node& node : nodes_) {
            if (!node.kept) {
                if (const int status = use(node.object); status != 0) {
                    return status;
                }
            }
        }
        return 0;
    }

  private:
    struct Node {
        const RefCounted* object = nullptr;
        std::uint32_t inside_owners = 0;
        bool kept = false;
        std::vector<std::size_t> owned = {};
    };

    void keep(std::size_t index) {
        if (!nodes_[index].kept) {
            nodes_[index].kept = true;
            for (const std::size_t owned : nodes_[index].owned) {
                keep(owned);
            }
        }
    }

    std::vector<Node> nodes_;
    std::size_t current_ = 0;
};

}  // namespace

int visit_python_objects(const Object& root, visitproc visit, void* arg) noexcept {
    if (root.owners() != 1) {
        return 0;
    }
    return OwnedGraph(root).each([&](const RefCounted* object) {
        const auto* from_python = dynamic_cast<const PythonObject*>(object);
        return from_python == nullptr ? 0 : visit(from_python->get(), arg);
    });
}

}  // namespace cvdeveloper::python
