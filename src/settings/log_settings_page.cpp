#include "settings/log_settings_page.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/page_texts.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "runtime/numbers.h"
#include "runtime/value.h"
#include "server/configuration_database.h"

using mdlOrvanDatabase::GetConfigurationSetting;
using mdlOrvanDatabase::SetConfigurationSetting;

namespace {

constexpr const char* pageName = "ppgConfLogSettings";
constexpr const char* maxMegabytes = "System.LogMgr.MaxDiagnosticMegabytesSaved";
constexpr const char* writingEnabled = "System.LogMgr.WritingEnabled";
constexpr const char* writingEnabledTimeSet = "System.LogMgr.Broadcast.WritingEnabledTimeSet";

constexpr std::int32_t spaceStep = 100;
constexpr std::int32_t mostSpace = 20'000;
constexpr int mostHours = 23;

/// A comparison with true, which is -1 among numbers; nothing else equals it.
bool equalsTrue(const Value& value)
{
    if (const auto* boolean = std::get_if<bool>(&value)) return *boolean;
    if (const auto* number = std::get_if<std::int32_t>(&value)) return *number == -1;
    if (const auto* number = std::get_if<double>(&value)) return *number == -1.0;
    return false;
}

} // namespace

ppgConfLogSettings::ppgConfLogSettings(ToolContext& tool) : SheetPage(pageName), tool_(tool)
{
    declare("lblLocationOfLogFiles", ControlRole::fieldLabel, lblLocationOfLogFiles);
    declare("txtLocationOfLogFiles", ControlRole::field, txtLocationOfLogFiles);
    declare("cmdLogFileLocationBrowse", ControlRole::action, cmdLogFileLocationBrowse);
    declare("lblMaxSpace", ControlRole::fieldLabel, lblMaxSpace);
    declare("comboMaxSpace", ControlRole::field, comboMaxSpace);
    declare("chkDiagnosticOutput", ControlRole::choice, chkDiagnosticOutput);
    declare("lblCycleDiagnosticLogs", ControlRole::fieldLabel, lblCycleDiagnosticLogs);
    declare("comboCycleDiagnosticLogs", ControlRole::field, comboCycleDiagnosticLogs);
    chkDiagnosticOutput.setVisible(false);
    lblCycleDiagnosticLogs.setVisible(false);
    comboCycleDiagnosticLogs.setVisible(false);

    const auto markChanged = [this] { Changed(true); };
    comboMaxSpace.onClick = comboMaxSpace.onChange = markChanged;
    comboCycleDiagnosticLogs.onClick = comboCycleDiagnosticLogs.onChange = markChanged;
    chkDiagnosticOutput.onClick = markChanged;
    txtLocationOfLogFiles.onChange = [this] { txtLocationOfLogFiles_Change(); };
    cmdLogFileLocationBrowse.onClick = [this] { cmdLogFileLocationBrowse_Click(); };
}

void ppgConfLogSettings::ppgConfLogSettings_Auto_Init()
{
    setCaptions(tool_, {{cmdLogFileLocationBrowse, TextId::browse},
                        {chkDiagnosticOutput, TextId::diagnosticOutput},
                        {lblLocationOfLogFiles, TextId::locationOfLogFiles},
                        {lblMaxSpace, TextId::maximumSpace},
                        {lblCycleDiagnosticLogs, TextId::cycleLogsEvery}});
}

void ppgConfLogSettings::IMMCPropertyPage_Initialize(ScopeItem*, PageSheet&)
{
    ErrorTrap step{tool_, pageName, "IMMCPropertyPage_Initialize"};

    step.enterProc();
    const std::string language = step.value(
        "", [&] { return getRegistryText(tool_, toolKey, "CurrentLocalizationLanguage"); });
    step([&] { tool_.language.g_lngCurrentLanguage = toInteger32(leadingNumber(language)); });
    InitalizeLanguages(tool_);
    applyFontToControls(tool_, *this);
    ppgConfLogSettings_Auto_Init();
    fillCycleDiagnosticLogs();
    const std::int32_t current = step.value(
        0, [&] { return valueAsInteger32(GetConfigurationSetting(tool_, maxMegabytes)); });
    fillMaxSpace(current);
    const bool enabled = step.value(
        false, [&] { return equalsTrue(GetConfigurationSetting(tool_, writingEnabled)); });
    chkDiagnosticOutput.setChecked(enabled);
    const std::string path =
        step.value("", [&] { return getRegistryText(tool_, logManagerKey, logFolderValue); });
    txtLocationOfLogFiles.setText(path);
    m_bPathChanged = false;
    step.exitProc();
}

/// The steps of the list, and the current value in its row among them. As index 0 also stands for
/// "not found yet", a value of 100 or less comes twice, and the second one is selected.
void ppgConfLogSettings::fillMaxSpace(std::int32_t current)
{
    int selected = 0;
    for (std::int32_t megabytes = spaceStep; megabytes <= mostSpace; megabytes += spaceStep) {
        if (megabytes == current) selected = comboMaxSpace.count();
        if (megabytes > current && selected == 0) {
            comboMaxSpace.addItem(numberTextWithLeadingBlank(current));
            selected = comboMaxSpace.count() - 1;
        }
        comboMaxSpace.addItem(numberTextWithLeadingBlank(megabytes));
    }
    comboMaxSpace.setSelectedIndex(selected);
}

void ppgConfLogSettings::fillCycleDiagnosticLogs()
{
    const std::string hours = myLoadResString(tool_, TextId::hours);
    comboCycleDiagnosticLogs.addItem("0" + hours + myLoadResString(tool_, TextId::isDefault));
    comboCycleDiagnosticLogs.addItem("1" + myLoadResString(tool_, TextId::hour));
    for (int count = 2; count <= mostHours; ++count)
        comboCycleDiagnosticLogs.addItem(numberText(std::int64_t{count}) + hours);
    comboCycleDiagnosticLogs.setSelectedIndex(0);
}

void ppgConfLogSettings::cmdLogFileLocationBrowse_Click()
{
    ErrorTrap step{tool_, pageName, "cmdLogFileLocationBrowse_Click"};

    step.enterProc();
    const std::string picked = step.value("", [&] { return selectDirectory(tool_); });
    if (!picked.empty()) txtLocationOfLogFiles.setText(picked);
    step.exitProc();
}

void ppgConfLogSettings::txtLocationOfLogFiles_Change()
{
    m_bPathChanged = true;
    Changed(true);
}

void ppgConfLogSettings::PropertyPage_ApplyChanges()
{
    ErrorTrap step{tool_, pageName, "PropertyPage_ApplyChanges"};
    const std::int32_t enabled = chkDiagnosticOutput.checked() ? 1 : 0;

    step.enterProc();
    if (appliedOnce_) {
        appliedOnce_ = false;
        return step.exitProc();
    }
    step([&] {
        SetConfigurationSetting(tool_, maxMegabytes, comboMaxSpace.text(), valueType::integer);
    });
    step([&] { SetConfigurationSetting(tool_, writingEnabled, enabled, valueType::boolean); });
    step([&] {
        SetConfigurationSetting(tool_, writingEnabledTimeSet, tool_.platform.clock.now(),
                                valueType::date);
    });
    if (m_bPathChanged) {
        step([&] {
            setRegistryValue(tool_, registryRoot::localMachine, logManagerKey, logFolderValue,
                             registryType::text, txtLocationOfLogFiles.text());
        });
        m_bPathChanged = false;
        step([&] {
            tool_.platform.desktop.messageBox(myLoadResString(tool_, TextId::mustRebootForChanges),
                                              myLoadResString(tool_, TextId::rebootRequired),
                                              MessageIcon::exclamation);
        });
    }
    appliedOnce_ = true;
    step.exitProc();
}
