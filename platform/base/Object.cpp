#include "platform/base/Object.h"

namespace platform {

const CRuntimeClass& CObject::GetRuntimeClass() const {
    static constexpr CRuntimeClass runtimeClass{"CObject"};
    return runtimeClass;
}

}  // namespace platform
