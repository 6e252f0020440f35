#include "cvdeveloper/automation/class_registry.h"

#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/message_box.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

// The library's only global mutable state.
struct Registry {
    std::mutex mutex;
    std::unordered_map<std::string, ClassFactory> classes;
    std::unordered_map<std::string, ObjectRef> active;
    SystemClasses system;
    MessageHandler message_handler;
    BlockingHook blocking_hook;
};

// Where this thread's messages go while a MessageCapture lives.
thread_local MessageCapture* capture = nullptr;

Registry& registry() {
    static Registry instance;
    return instance;
}

BlockingHook blocking_hook() {
    Registry& all = registry();
    const std::lock_guard lock(all.mutex);
    return all.blocking_hook;
}

}  // namespace

void register_class(std::string_view class_name, ClassFactory factory) {
    Registry& all = registry();
    // What is replaced may run a script's code when it goes: let it go after the lock.
    ClassFactory replaced;
    const std::lock_guard lock(all.mutex);
    std::string key = lower_case(class_name);
    if (factory) {
        replaced = std::exchange(all.classes[std::move(key)], std::move(factory));
    } else if (auto node = all.classes.extract(key)) {
        replaced = std::move(node.mapped());
    }
}

void register_active_object(std::string_view class_name, ObjectRef object) {
    Registry& all = registry();
    ObjectRef replaced;
    const std::lock_guard lock(all.mutex);
    std::string key = lower_case(class_name);
    if (object) {
        replaced = std::exchange(all.active[std::move(key)], std::move(object));
    } else if (auto node = all.active.extract(key)) {
        replaced = std::move(node.mapped());
    }
}

void clear_registry() {
    Registry& all = registry();
    std::unordered_map<std::string, ClassFactory> classes;
    std::unordered_map<std::string, ObjectRef> active;
    const std::lock_guard lock(all.mutex);
    classes.swap(all.classes);
    active.swap(all.active);
}

void set_system_classes(SystemClasses classes) {
    Registry& all = registry();
    const std::lock_guard lock(all.mutex);
    all.system = classes;
}

ObjectRef create_object(std::string_view class_name) {
    Registry& all = registry();
    ClassFactory factory;
    SystemClasses system;
    {
        const std::lock_guard lock(all.mutex);
        system = all.system;
        if (const auto found = all.classes.find(lower_case(class_name));
            found != all.classes.end()) {
            factory = found->second;
        }
    }
    if (factory) {
        return factory();
    }
    ObjectRef made = system.create == nullptr ? nullptr : system.create(class_name);
    if (!made) {
        raise(RuntimeError::CannotCreateObject, class_name);
    }
    return made;
}

ObjectRef active_object(std::string_view class_name) {
    Registry& all = registry();
    SystemClasses system;
    {
        const std::lock_guard lock(all.mutex);
        if (const auto found = all.active.find(lower_case(class_name)); found != all.active.end()) {
            return found->second;
        }
        system = all.system;
    }
    ObjectRef running = system.active == nullptr ? nullptr : system.active(class_name);
    if (!running) {
        raise(RuntimeError::CannotCreateObject, class_name);
    }
    return running;
}

void set_message_handler(MessageHandler handler) {
    Registry& all = registry();
    MessageHandler replaced;
    const std::lock_guard lock(all.mutex);
    replaced = std::exchange(all.message_handler, std::move(handler));
}

MessageCapture::MessageCapture() : outer_(std::exchange(capture, this)) {}

MessageCapture::~MessageCapture() {
    capture = outer_;
}

void show_message(std::string_view text) {
    if (capture != nullptr) {
        capture->messages_.emplace_back(text);
        capture->cause_ = std::current_exception();
        return;
    }
    Registry& all = registry();
    MessageHandler handler;
    {
        const std::lock_guard lock(all.mutex);
        handler = all.message_handler;
    }
    if (handler) {
        handler(text);
    } else {
        show_system_message(text);
    }
}

void set_blocking_hook(BlockingHook hook) {
    Registry& all = registry();
    const std::lock_guard lock(all.mutex);
    all.blocking_hook = hook;
}

void check_interrupt() {
    if (const BlockingHook hook = blocking_hook(); hook.check_interrupt != nullptr) {
        hook.check_interrupt();
    }
}

BlockingScope::BlockingScope() : hook_(blocking_hook()) {
    if (hook_.release != nullptr) {
        state_ = hook_.release();
    }
}

BlockingScope::~BlockingScope() {
    if (hook_.reacquire != nullptr && state_ != nullptr) {
        hook_.reacquire(state_);
    }
}

}  // namespace cvdeveloper
