#pragma once

#include "framework/windows_api.h"

/// What is known of a class at run time: its name and its base.
struct CRuntimeClass {
    const char* m_lpszClassName;
    const CRuntimeClass* m_pBaseClass; ///< null for CObject

    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

/// The root of all classes that know their own class at run time.
class CObject
{
  public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    static const CRuntimeClass classCObject;
    virtual const CRuntimeClass* GetRuntimeClass() const;
    /// True for an object of the class or of one derived from it.
    bool IsKindOf(const CRuntimeClass* base) const;

  protected:
    CObject() = default;
};

/// The object when it is of the class, else null; null for null.
template <class Class>
Class* AfxDynamicDownCast(CObject* object)
{
    return object != nullptr && object->IsKindOf(Class::GetThisClass()) ? static_cast<Class*>(object)
                                                                        : nullptr;
}

#define DYNAMIC_DOWNCAST(class_name, object) (AfxDynamicDownCast<class_name>(object))

/// In the class: makes its objects know their class. The access that follows is
/// public.
#define DECLARE_DYNAMIC(class_name)                                                                          \
  public:                                                                                                    \
    static const CRuntimeClass class##class_name;                                                            \
    static const CRuntimeClass* GetThisClass()                                                               \
    {                                                                                                        \
        return &class##class_name;                                                                           \
    }                                                                                                        \
    const CRuntimeClass* GetRuntimeClass() const override;

/// In the source, once for each DECLARE_DYNAMIC.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    const CRuntimeClass class_name::class##class_name = {#class_name,                                        \
                                                         &base_class_name::class##base_class_name};          \
    const CRuntimeClass* class_name::GetRuntimeClass() const                                                 \
    {                                                                                                        \
        return &class##class_name;                                                                           \
    }
