#pragma once

#include "framework/windows_api.h"

/// The run-time information about a class: its name and its base class.
struct CRuntimeClass {
    const char* m_lpszClassName;
    const CRuntimeClass* m_pBaseClass; ///< null for CObject

    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

/// The root of all classes with run-time class information.
class CObject
{
  public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    static const CRuntimeClass classCObject;
    virtual const CRuntimeClass* GetRuntimeClass() const;
    /// True if the object's class is the given class or derived from it.
    bool IsKindOf(const CRuntimeClass* base) const;

  protected:
    CObject() = default;
};

/// The object if it is of the class, otherwise null; null for null.
template <class Class>
Class* AfxDynamicDownCast(CObject* object)
{
    return object != nullptr && object->IsKindOf(Class::GetThisClass()) ? static_cast<Class*>(object)
                                                                        : nullptr;
}

#define DYNAMIC_DOWNCAST(class_name, object) (AfxDynamicDownCast<class_name>(object))

/// Adds run-time class information to a class. The access that follows is
/// public.
#define DECLARE_DYNAMIC(class_name)                                                                          \
  public:                                                                                                    \
    static const CRuntimeClass class##class_name;                                                            \
    static const CRuntimeClass* GetThisClass()                                                               \
    {                                                                                                        \
        return &class##class_name;                                                                           \
    }                                                                                                        \
    const CRuntimeClass* GetRuntimeClass() const override;

/// Belongs in a source file, once for each DECLARE_DYNAMIC.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    const CRuntimeClass class_name::class##class_name = {#class_name,                                        \
                                                         &base_class_name::class##base_class_name};          \
    const CRuntimeClass* class_name::GetRuntimeClass() const                                                 \
    {                                                                                                        \
        return &class##class_name;                                                                           \
    }
