#include "traces/macro_trace_catalogue.h"
#include "traces/macro_trace_operations.h"
#include "traces/micro_traces.h"
#include "traces/reset_traces.h"
#include "traces/traces_fixture.h"

#include <rapidcheck.h>

#include <array>
#include <map>
#include <optional>

namespace {

constexpr std::size_t componentCount = 4;

/// Names of the components; the one behind the grid's is in definitions alone.
const std::array<std::string, componentCount + 1> names = {"A", "B", "C", "D", "Unknown"};

struct Part {
    std::size_t component;
    std::vector<int> levels; ///< 32 is none
};

struct Bundle {
    std::string group;
    std::string name;
    std::vector<Part> parts;
};

using Words = std::array<std::uint32_t, componentCount>;

/// What the flag words and the record ought to be, told in plain bits.
struct Model {
    Words words{};
    Words defaults{};
    std::vector<Bundle> bundles;
    std::vector<std::optional<bool>> recorded; ///< for each bundle; nothing before the first time
    int signals = 0;

    template <typename Combine>
    void change(const Bundle& bundle, Combine combine)
    {
        for (const auto& part : bundle.parts)
            for (const int level : part.levels)
                if (part.component < componentCount && level < 32)
                    combine(words[part.component], std::uint32_t{1} << level);
    }

    void finish()
    {
        for (std::size_t i = 0; i < componentCount; ++i) words[i] |= defaults[i];
        ++signals;
    }

    void macro(const std::vector<bool>& ticks)
    {
        for (std::size_t i = 0; i < bundles.size(); ++i) {
            if (ticks[i] || recorded[i] != true) continue;
            change(bundles[i], [](std::uint32_t& word, std::uint32_t bit) { word ^= bit; });
            recorded[i] = false;
        }
        for (std::size_t i = 0; i < bundles.size(); ++i) {
            if (!ticks[i]) continue;
            change(bundles[i], [](std::uint32_t& word, std::uint32_t bit) { word |= bit; });
            recorded[i] = true;
        }
        finish();
    }

    void micro(const Words& ticks)
    {
        words = ticks;
        finish();
    }

    void reset()
    {
        words = {};
        for (auto& state : recorded)
            if (state) state = false;
        finish();
    }
};

std::string xmlOf(const std::vector<Bundle>& bundles, const std::string& group)
{
    std::string text = "<GA NAME='" + group + "'>";
    for (const auto& bundle : bundles) {
        if (bundle.group != group) continue;
        text += "<TRACE NAME='" + bundle.name + "'>";
        for (const auto& part : bundle.parts) {
            text += "<DIAG GROUP='" + names[part.component] + "'>";
            for (const int level : part.levels)
                text += "<FLAG ID='" + std::to_string(level) + "'/>";
            text += "</DIAG>";
        }
        text += "</TRACE>";
    }
    return text + "</GA>";
}

/// The tool on a server that begins as the model does.
struct Subject : TracesTest {
    void TestBody() override {}

    explicit Subject(const Model& model)
    {
        for (std::size_t i = 0; i < componentCount; ++i)
            tool.database.withComponent(names[i], static_cast<std::int32_t>(model.words[i]),
                                        static_cast<std::int32_t>(model.defaults[i]));
        for (const char* group : {"G", "H"})
            withFile(std::string("HT") + group + ".xml", xmlOf(model.bundles, group));
        mdlTraces::initMacroTraces(tool.context);
    }

    void macro(const std::vector<Bundle>& bundles, const std::vector<bool>& ticks)
    {
        TreeView tree;
        std::vector<Choice> choices;
        for (const char* group : {"G", "H"}) {
            choices.push_back({true, group});
            for (std::size_t i = 0; i < bundles.size(); ++i)
                if (bundles[i].group == group)
                    choices.push_back({false, bundles[i].name, ticks[i]});
        }
        fillTree(tree, choices);
        mdlTraces::configureMacroTrace(tool.context, tree);
    }

    void micro(const Words& ticks)
    {
        TreeView tree;
        std::vector<Choice> choices;
        for (std::size_t i = 0; i < componentCount; ++i) {
            choices.push_back({true, "Text of it (" + names[i] + ")"});
            for (int level = 0; level < 32; ++level)
                choices.push_back({false,
                                   (level < 10 ? "0" : "") + std::to_string(level) + "  level",
                                   (ticks[i] >> level & 1U) != 0});
        }
        fillTree(tree, choices);
        mdlTraces::configureMicroTrace(tool.context, tree);
    }

    void agreesWith(const Model& model)
    {
        for (std::size_t i = 0; i < componentCount; ++i)
            RC_ASSERT(static_cast<std::uint32_t>(flags(names[i])) == model.words[i]);
        for (std::size_t i = 0; i < model.bundles.size(); ++i) {
            const auto& state = model.recorded[i];
            const std::int32_t expected = state ? (*state ? 1 : 0) : -1;
            RC_ASSERT(enabledRecord(model.bundles[i].group, model.bundles[i].name) == expected);
        }
        RC_ASSERT(signalsSent() == model.signals);
    }
};

/// Words in which few bits, some bits, or the highest are on.
std::uint32_t someWord()
{
    return *rc::gen::oneOf(rc::gen::arbitrary<std::uint32_t>(),
                           rc::gen::element<std::uint32_t>(0, 1, 5, 0x80000000U, 0xFFFFFFFFU));
}

/// Macro traces in the order in which two files bring them.
std::vector<Bundle> someBundles()
{
    std::vector<Bundle> bundles;
    for (const char* group : {"G", "H"}) {
        const int count = *rc::gen::inRange(0, 4);
        for (int number = 0; number < count; ++number) {
            Bundle bundle{group, "T" + std::to_string(number), {}};
            const int parts = *rc::gen::inRange(0, 4);
            for (int part = 0; part < parts; ++part)
                bundle.parts.push_back({*rc::gen::inRange<std::size_t>(0, names.size()),
                                        *rc::gen::resize(5, rc::gen::container<std::vector<int>>(
                                                                rc::gen::inRange(0, 33)))});
            bundles.push_back(bundle);
        }
    }
    return bundles;
}

Words someWords()
{
    Words words{};
    for (auto& word : words) word = someWord();
    return words;
}

} // namespace

TEST(TraceSequences, EndInTheFlagsAndRecordsThatPlainBitsGive)
{
    const bool holds = rc::check("any sequence of macro, micro and reset operations", [] {
        Model model;
        model.words = someWords();
        model.defaults = someWords();
        model.bundles = someBundles();
        model.recorded.resize(model.bundles.size());
        Subject subject(model);

        const int operations = *rc::gen::inRange(1, 8);
        for (int operation = 0; operation < operations; ++operation) {
            switch (*rc::gen::inRange(0, 4)) {
            case 0:
            case 1: {
                const auto ticks = *rc::gen::container<std::vector<bool>>(
                    model.bundles.size(), rc::gen::arbitrary<bool>());
                model.macro(ticks);
                subject.macro(model.bundles, ticks);
                break;
            }
            case 2: {
                const Words ticks = someWords();
                model.micro(ticks);
                subject.micro(ticks);
                break;
            }
            default:
                model.reset();
                mdlTraces::disableAllTraces(subject.tool.context);
                break;
            }
            subject.agreesWith(model);
        }
    });
    EXPECT_TRUE(holds);
}
