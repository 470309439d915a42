// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

#include <memory>

/// Localised resources: a module's texts and pictures in the user's language lie in a satellite library beside it.
///
/// The satellite of `VQDraw.dll` for a user of Swiss German is `VQDraw.de-CH.dll`, or else `VQDraw.de.dll`; that of
/// `libVQDraw.so.0` is `libVQDraw.de-CH.so.0` or `libVQDraw.de.so.0`: the language stands before the first dot.
class VQCOMMONBASE_API CVQLocaleAPI
{
public:
    static CVQLocaleAPI* GetInstance();

    /// Looks for the satellite of `module` in the user's language and makes it the place where the module's resources
    /// come from: `moduleState`, an `AFX_MODULE_STATE`, gets its handle as `m_hCurrentResourceHandle`.
    ///
    /// @return TRUE when a satellite was found. FALSE when there is none, or an argument is null: the module's own
    /// resources stay in use. A satellite stays loaded until this library is unloaded, however often it is asked for.
    BOOL LoadCurrentLocaleResource(HINSTANCE module, void* moduleState);

    /// For whoever is about to read or write the numbers of a text file in the form that the argument chooses: the name
    /// of the C locale that was in force for numbers before. Here nothing needs a change, because no number of these
    /// libraries follows a locale; so none takes place, and there is nothing to restore.
    CString GetChangeBeforeLanguageName(int form);

    ~CVQLocaleAPI();
    CVQLocaleAPI(const CVQLocaleAPI&) = delete;
    CVQLocaleAPI& operator=(const CVQLocaleAPI&) = delete;

private:
    struct Satellite;

    CVQLocaleAPI();
    HINSTANCE load(const CString& path);

    CCriticalSection m_lock;
    std::unique_ptr<Satellite> m_satellites; // a list: a process has a handful at most
};
