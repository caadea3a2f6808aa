/**
 * Orthoval Preferences: the interface for hosts, for C (C89 or later) and C++
 * (C++11 or later).
 *
 * The library shows one modal dialog that edits one configuration file
 * (`*.cfg`).
 *
 * Exports. The library exports four names:
 *
 *   - ovPreferences_showDialog and ovPreferences_showDialogEx, declared below,
 *     under these plain names. A host links the import library (ovPreferences.dll.a
 *     for MinGW, ovPreferences.lib for MSVC-compatible linkers), or uses LoadLibrary
 *     and GetProcAddress with the function pointer types and names below.
 *   - ??4BSize@UIFramework@Bentley@@QEAAAEAV012@AEBV012@@Z and
 *     ??4BSize@UIFramework@Bentley@@QEAAAEAV012@$$QEAV012@@Z, the copy and the
 *     move assignment of Bentley::UIFramework::BSize, for CAD hosts whose own
 *     header declares that class. Other hosts do not need them, and nothing is
 *     declared for them here.
 *
 * Threading. Call from the thread that owns the host's windows. The call
 * returns when the user has closed the dialog. Until then it runs a message
 * loop of its own on the calling thread. The library does no locking: make one
 * call at a time per process, and none from within another call.
 *
 * Ownership. The library copies every text before it returns and keeps no pointer
 * to the host's memory. It does not free the host's memory, and it gives the host
 * nothing to free. Unload the library only while no call is running.
 *
 * Parents. The parent's top-level window owns the dialog and is disabled while
 * the dialog is open. `parent` may be:
 *
 *   - a window handle, cast to the parent type. It is recognised by IsWindow.
 *     Most hosts pass this:
 *
 *         ovPreferences_showDialogEx((CWnd*)hostWindow, L"C:\\cad\\defaults.cfg",
 *                                    L"C:\\cad\\office.cfg", NULL);
 *
 *   - null: the calling thread's active window is the parent. If the thread
 *     has none, the dialog has no owner.
 *   - a window object of this library's own framework layer. Only code built with
 *     that layer has such an object.
 *
 * Any other pointer, such as a window object of another framework or the handle
 * of a destroyed window, counts as null. The pointer is never dereferenced.
 *
 * If the owner is destroyed while the dialog is open, the dialog stays open
 * without an owner, and the call returns when the user has closed the dialog.
 * This applies to an owner of the calling thread. Do not pass a window of
 * another thread or process: the system may destroy the dialog together with
 * it, and unsaved changes are lost.
 *
 * WM_QUIT asks the dialog to close, as Cancel does: if there are unsaved changes,
 * the user is asked first and may keep the dialog open. When the dialog has
 * closed, WM_QUIT is posted again for the host's own message loop.
 *
 * One dialog at a time. A call while another one is running, for example from a
 * timer, brings the dialog to the front, changes none of its texts and returns 1.
 * The same applies while the first call is closing its dialog.
 *
 * Activation contexts. The library's own manifest is active only while the
 * library's code runs. Host code that runs in the dialog's message loop sees the
 * context of its own thread. A context that it leaves active is still active
 * after the call.
 *
 * Files. The file's bytes are converted by the locale (`setlocale`, category
 * LC_CTYPE) of the C runtime that this library uses, msvcrt.dll. A host that is
 * built for that runtime calls its own setlocale. A host that is built for the
 * universal runtime, ucrtbase.dll, as Visual Studio does, has a separate locale
 * that the library does not see. Such a host sets the locale of msvcrt.dll
 * once, before the first call:
 *
 *     typedef char *(__cdecl *SetLocale)(int category, const char *locale);
 *     HMODULE runtime = LoadLibraryW(L"msvcrt.dll");
 *     SetLocale setMsvcrtLocale = (SetLocale)(void *)GetProcAddress(runtime, "setlocale");
 *     if (setMsvcrtLocale == NULL || setMsvcrtLocale(LC_CTYPE, "") == NULL)
 *         return false;
 *
 * LC_CTYPE is the same number in both runtimes. The empty text means the ANSI
 * code page of Windows; ".1252" is an example of a particular one. A null result
 * means that msvcrt.dll does not have that locale, as with UTF-8.
 *
 * Without these lines the locale is "C": every byte is one character of the
 * same number, U+0000 to U+00FF. The content of the file is kept byte for byte, but
 * the dialog shows wrong characters for the bytes 128 to 159 of code page 1252, and
 * for more bytes in other code pages. A typed character above U+00FF, such as the
 * euro sign, cannot be saved: Save names the character and writes nothing.
 */
#ifndef OV_PREFERENCES_H
#define OV_PREFERENCES_H

#include <stddef.h>

/* The library itself defines OV_PREFERENCES_BUILDING; its exports come from a
   module definition file. */
#ifndef OV_PREFERENCES_API
#if defined(_WIN32) && !defined(OV_PREFERENCES_BUILDING)
#define OV_PREFERENCES_API __declspec(dllimport)
#else
#define OV_PREFERENCES_API
#endif
#endif

/** The dialog was shown; the user may have saved or cancelled. */
#define OV_PREFERENCES_SHOWN 0u
/** The dialog could not be initialised and was not shown. */
#define OV_PREFERENCES_NOT_SHOWN 1u

/** File name of the library and the function names for GetProcAddress. */
#define OV_PREFERENCES_LIBRARY L"ovPreferences.dll"
#define OV_PREFERENCES_SHOW_DIALOG_NAME "ovPreferences_showDialog"
#define OV_PREFERENCES_SHOW_DIALOG_EX_NAME "ovPreferences_showDialogEx"

#ifdef __cplusplus
class CWnd;
extern "C" {
#else
typedef struct CWnd CWnd;
#endif

/**
 * Shows the dialog, without a parent, for the texts set by an earlier call of
 * ovPreferences_showDialogEx in this process (all empty at first).
 * Without a defaults file and a current file, the dialog opens with all settings
 * off or empty, and the user chooses the file to write.
 * @return OV_PREFERENCES_SHOWN or OV_PREFERENCES_NOT_SHOWN.
 */
OV_PREFERENCES_API unsigned int ovPreferences_showDialog(void);

/**
 * Shows the dialog for the given files.
 *
 * Each text is null-terminated. A null text keeps the one set by an earlier
 * call; an empty text clears it. The texts are kept until the library is
 * unloaded: a later call that passes null uses them again.
 *
 * @param parent       The window whose top-level window owns the dialog, or null
 *                     (see Parents).
 * @param defaultPath  The configuration file with the default values; it is
 *                     only read. Empty: no defaults are loaded.
 * @param currentPath  The configuration file to edit: read when the
 *                     dialog opens, written by Save. Empty: no file yet.
 * @param userName     The name written into the header of the saved file.
 *                     Empty: the name of the Windows user.
 * @return OV_PREFERENCES_SHOWN or OV_PREFERENCES_NOT_SHOWN. A file that
 *         cannot be read is reported to the user, not to the host.
 */
OV_PREFERENCES_API unsigned int ovPreferences_showDialogEx(CWnd* parent, const wchar_t* defaultPath,
                                                           const wchar_t* currentPath,
                                                           const wchar_t* userName);

/* NOLINTBEGIN(modernize-use-using): C has no alias declarations. */
/** Types of the two functions, for GetProcAddress. */
typedef unsigned int (*ovPreferences_showDialog_t)(void);
typedef unsigned int (*ovPreferences_showDialogEx_t)(CWnd* parent, const wchar_t* defaultPath,
                                                     const wchar_t* currentPath, const wchar_t* userName);
/* NOLINTEND(modernize-use-using) */

#ifdef __cplusplus
}
#endif

#endif
