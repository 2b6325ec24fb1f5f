#include "hosts/common/gather/gather_watch.h"

#include "hosts/common/gather/gather_account.h"
#include "hosts/common/gather/gather_report.h"
#include "system/machine_path.h"
#include "wizards/gather_progress.h"

#include <filesystem>
#include <system_error>
#include <utility>

GatherWatch::GatherWatch(ToolContext& tool, GatherReport& report, const ppgGatherLogs03Step& page,
                         MachinePath machinePath)
    : tool_(tool), report_(report), machinePath_(std::move(machinePath)),
      job_(gatherJobOf(page.job())), files_(tool_, job_, machinePath_),
      troubles_(page.treeviewSteps, [this] {
          std::error_code none;
          return std::filesystem::is_directory(filePathOf(files_.folder()), none);
      })
{
    report_.forgetReadings();
    listener_.emplace(tool_, [this](const RunTimeError& error, std::string_view procName) {
        troubles_.note(error, procName);
    });
}

GatherOutcome GatherWatch::outcome() const
{
    return outcomeOf({tool_, report_, job_, files_, troubles_, machinePath_, cancelled_});
}
