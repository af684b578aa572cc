// CreatorRegistry.h - the name-to-creator table shared by the geodesy
// registries (internal; the registries' headers are the interface).
//
// Every member takes the table's lock, so registering, looking up and
// listing may run on several threads at once. Creators are not owned.
#pragma once

#include <base/framework/CString.h>

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace vex::detail {

template <class Key, class Creator>
class CreatorRegistry {
  public:
    // Enters creator under key, replacing an earlier entry; a null creator
    // is not entered, since it could create nothing.
    void Register(const Key& key, Creator* creator) {
        if (creator == nullptr) return;
        std::lock_guard lock(mutex_);
        creators_[key] = creator;
    }

    void Unregister(const Key& key) {
        std::lock_guard lock(mutex_);
        creators_.erase(key);
    }

    Creator* Find(const Key& key) const {
        std::lock_guard lock(mutex_);
        auto found = creators_.find(key);
        return found == creators_.end() ? nullptr : found->second;
    }

    // Replaces keys with the registered keys in order; returns their number.
    int Keys(std::vector<Key>& keys) const {
        std::lock_guard lock(mutex_);
        keys.clear();
        keys.reserve(creators_.size());
        for (const auto& entry : creators_)
            keys.push_back(entry.first);
        return static_cast<int>(keys.size());
    }

  private:
    mutable std::mutex mutex_;
    std::map<Key, Creator*> creators_;
};

// Makes an object with the creator registered under name and initialises
// it; an object whose Init fails is destroyed. Null for an unknown name.
// The creator runs outside the table's lock, so a creator or an Init may
// itself use the registry.
template <class Object, class Creator>
Object* CreateInitialised(const CreatorRegistry<CString, Creator>& registry, const CString& name) {
    Creator* creator = registry.Find(name);
    if (creator == nullptr) return nullptr;
    std::unique_ptr<Object> object(creator->Create());
    if (!object || !object->Init()) return nullptr;
    return object.release();
}

}  // namespace vex::detail
