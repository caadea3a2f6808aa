#include "framework/object.h"

const CRuntimeClass CObject::classCObject = {"CObject", nullptr};

const CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* base) const
{
    for (const CRuntimeClass* current = this; current != nullptr; current = current->m_pBaseClass) {
        if (current == base)
            return true;
    }
    return false;
}

bool CObject::IsKindOf(const CRuntimeClass* base) const
{
    return GetRuntimeClass()->IsDerivedFrom(base);
}
