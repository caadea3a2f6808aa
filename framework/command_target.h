#pragma once

#include "framework/object.h"

class CCmdTarget;

/// The arguments of a message-map handler. A thunk passes on those that the handler takes.
struct AFX_HANDLER_CALL {
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT id = 0;             ///< commands and notifications: the control's id
    NMHDR* header = nullptr; ///< notifications only, otherwise null
    LRESULT result = 0;      ///< the return value of the message
    bool handled = true;     ///< a handler sets it to false to request the default handling
};

/// Calls an entry's handler on an object of the map's class.
using AFX_HANDLER = void (*)(CCmdTarget& target, AFX_HANDLER_CALL& call);

/// A row of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT message; ///< the window message; WM_COMMAND and WM_NOTIFY for commands and notifications
    UINT code;    ///< notification code, 0 for commands and plain messages
    UINT firstId; ///< the range of control ids from firstId to lastId, both included
    UINT lastId;
    AFX_HANDLER handler; ///< null in the entry that ends the map
};

/// A class's message map, with the function that returns the base class's map.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*baseMap)(); ///< null in the root class
    const AFX_MSGMAP_ENTRY* entries;
};

/// The notification code of a command from a menu or an accelerator. It has the
/// same value as BN_CLICKED, so a command entry handles buttons too.
constexpr int CN_COMMAND = 0;

/// A class whose objects handle messages through a message map.
class CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

    /// Passes a command (WM_COMMAND code) or a notification to its handler in the
    /// map. FALSE if there is none. For a notification `code` is its code, `notify`
    /// its header, and `result` receives the value returned to the control; both
    /// pointers are null for a command.
    virtual BOOL OnCmdMsg(UINT id, int code, NMHDR* notify, LRESULT* result);

  protected:
    CCmdTarget() = default;
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    /// The entry for a message in this class's map, or in the nearest base class that has one.
    const AFX_MSGMAP_ENTRY* FindMessageEntry(UINT message, UINT code, UINT id) const;
};
