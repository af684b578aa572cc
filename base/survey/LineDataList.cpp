#include <base/survey/LineDataList.h>

#include <base/survey/LineData.h>

namespace vex {

LineDataList& LineDataList::GetLineDataList() {
    static LineDataList list;
    return list;
}

bool LineDataList::RegisterLineData(std::uint32_t number, LineDataICreator* creator) {
    if (creator == nullptr) {
        return false;
    }
    const std::lock_guard lock(mutex_);
    return creators_.emplace(number, creator).second;
}

LineData* LineDataList::Create(std::uint32_t number, const CString& name) const {
    LineDataICreator* creator = nullptr;
    {
        const std::lock_guard lock(mutex_);
        const auto found = creators_.find(number);
        if (found == creators_.end()) {
            return nullptr;
        }
        creator = found->second;
    }
    // Outside the lock: a creator may itself use the registry.
    return creator->Create(name);
}

bool LineDataList::IsRegistered(std::uint32_t number) const {
    const std::lock_guard lock(mutex_);
    return creators_.count(number) != 0;
}

}  // namespace vex
