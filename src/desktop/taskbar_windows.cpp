// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "desktop/taskbar.h"

#include <windows.h>

#include <shobjidl.h>

namespace {

class ComTaskbarList final : public TaskbarList
{
public:
    explicit ComTaskbarList(ITaskbarList3 *connected)
        : list(connected)
    {
    }
    ~ComTaskbarList() override { list->Release(); }
    Q_DISABLE_COPY_MOVE(ComTaskbarList)

private:
    ITaskbarList3 *list;
};

} // namespace

std::unique_ptr<TaskbarList> TaskbarList::create(WId window)
{
    ITaskbarList3 *list = nullptr;
    if (CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                         reinterpret_cast<void **>(&list)) != S_OK)
        return nullptr;
    // Deliberate: no HrInit, and no other use of the interface until its release.
    list->SetProgressState(reinterpret_cast<HWND>(window), TBPF_NOPROGRESS);
    return std::make_unique<ComTaskbarList>(list);
}
