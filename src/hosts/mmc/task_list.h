#pragma once

#include "console/task_pad.h"
#include "hosts/mmc/com/com_object.h"

#include <vector>

namespace mmc {

/// The tasks of a task pad, as they were when it was made. Their numbers are their positions, from
/// 1.
class TaskList final : public ComObject<IEnumTASK> {
public:
    explicit TaskList(TaskPad& pad);

    HRESULT WINAPI Next(ULONG count, MMC_TASK* tasks, ULONG* fetched) override;
    HRESULT WINAPI Skip(ULONG count) override;
    HRESULT WINAPI Reset() override;
    HRESULT WINAPI Clone(IEnumTASK** copy) override;

private:
    std::string fontFile_;
    std::vector<Task> tasks_;
    std::size_t next_ = 0;
};

} // namespace mmc
