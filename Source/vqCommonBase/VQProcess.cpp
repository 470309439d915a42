// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQProcess.h"

#include <mutex>

namespace {

/// What a host has set.
class ChosenFolders
{
public:
    static ChosenFolders& instance()
    {
        static ChosenFolders folders;
        return folders;
    }

    CString get(CString ChosenFolders::*folder) const
    {
        const std::lock_guard lock(m_lock);
        return this->*folder;
    }

    void set(CString ChosenFolders::*folder, const CString& path)
    {
        const std::lock_guard lock(m_lock);
        this->*folder = path;
    }

    CString boot;
    CString documents;

private:
    mutable std::mutex m_lock;
};

} // namespace

CString CVQProcess::GetBootPath()
{
    const CString chosen = ChosenFolders::instance().get(&ChosenFolders::boot);
    return chosen.IsEmpty() ? CString(vq::platform::programFolder().c_str()) : chosen;
}

void CVQProcess::SetBootPath(const CString& path)
{
    ChosenFolders::instance().set(&ChosenFolders::boot, path);
}

CString CVQProcess::GetMyDocumentPath(bool create)
{
    const CString chosen = ChosenFolders::instance().get(&ChosenFolders::documents);
    return chosen.IsEmpty() ? CString(vq::platform::documentsFolder(create).c_str()) : chosen;
}

void CVQProcess::SetMyDocumentPath(const CString& path)
{
    ChosenFolders::instance().set(&ChosenFolders::documents, path);
}
