#include "bench/EditorBench.h"
#include "bench/LibraryBench.h"
#include "resources/resource.h"
#include "tests/machines/LargeMachines.h"
#include "tests/machines/SampleMachine.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>

namespace
{
// The most that an action may take, as a multiple of the floor.
constexpr double kOpenTarget = 1.3;
constexpr double kChangeTarget = 1.5;

constexpr int kManySchemes = 5000;
constexpr int kManyFactorySchemes = 1000;
constexpr int kManyConfigs = 256;
constexpr int kRowsOfConfig = 1000;
constexpr int kSizes[] = {10, 100, 1000, 10000};
constexpr int kGrowthRounds = 3;

// The user editor lists its own schemes at the end. After a change of configuration it shows no scheme.
const EditorBench::Selection kBetweenSchemes = {IDC_LIST_SCHEME, {0, 1}, {true, 0}};
const EditorBench::Selection kBetweenUserSchemes = {IDC_LIST_SCHEME, {-1, -2}, {true, 0}};
const EditorBench::Selection kBetweenModes = {IDC_LIST_MODE, {0, 1}, {true, 0}};
const EditorBench::Selection kBetweenConfigs = {IDC_LIST_CFG, {0, 1}, {false, IDC_LIST_SCHEME}};

struct Options
{
    std::string title = "x64";
    std::string json;
    std::string only; // cases whose name contains it
    int rounds = 15;
};

Options ParseOptions(int count, char** arguments)
{
    Options options;
    for (int i = 1; i + 1 < count; i += 2)
    {
        const std::string name = arguments[i];
        const std::string value = arguments[i + 1];
        if (name == "--title")
            options.title = value;
        else if (name == "--json")
            options.json = value;
        else if (name == "--only")
            options.only = value;
        else if (name == "--rounds")
            options.rounds = std::stoi(value);
        else
            throw std::runtime_error("unknown option " + name);
    }
    return options;
}

class Bench
{
public:
    explicit Bench(const Options& options) : m_options(options) { m_report.title = options.title; }

    const Report& Run()
    {
        const LoadedLibrary library = MeasureLoading(m_report, m_options.rounds);
        MeasureLanguage(m_report, m_options.rounds);
        Stage stage;
        m_bench.emplace(stage, library.module, *library.editors, ProgramFolder() + L"lang\\en");
        MeasureEditors();
        MeasureGrowth();
        Memory("peak memory, editors and floors with 10,000 rows");
        return m_report;
    }

private:
    bool Wanted(const std::string& name) const { return name.find(m_options.only) != std::string::npos; }

    // The peak means something only if all cases were measured.
    void Memory(const std::string& name)
    {
        if (m_options.only.empty())
            MeasureMemory(m_report, name);
    }

    void Opening(const std::string& name, const EditorKind& kind, const refhost::Machine& machine)
    {
        if (Wanted(name))
            Add(m_bench->OpenAndClose(name, kind, machine, m_options.rounds), kOpenTarget);
    }

    void Changing(const std::string& name, const EditorKind& kind, const refhost::Machine& machine,
                  const EditorBench::Selection& selection)
    {
        if (!Wanted(name))
            return;
        const EditorBench::ChangeTimes times =
            m_bench->Change(name, kind, machine, selection, std::max(1, m_options.rounds / 3));
        Add(times.handled, kChangeTarget);
        Add(times.painted, kChangeTarget);
    }

    void Add(Comparison comparison, double target)
    {
        comparison.target = target;
        m_report.comparisons.push_back(comparison);
        std::fprintf(stderr, "%s: %.2f ms, baseline %.2f ms, ratio %.2f\n", comparison.name.c_str(),
                     comparison.subject.Median(), comparison.baseline.Median(), comparison.ratios.Median());
    }

    void MeasureEditors();
    void MeasureGrowth();

    // Measures a case at every size. `measure` returns the comparison for a number of rows.
    void Grow(const std::string& name, const std::function<Comparison(const std::string&, int)>& measure)
    {
        if (!Wanted(name))
            return;
        Growth growth{name, {}, {}, {}};
        for (int rows : kSizes)
        {
            const Comparison comparison = measure(name, rows);
            growth.sizes.push_back(rows);
            growth.subject.push_back(comparison.subject.Median());
            growth.baseline.push_back(comparison.baseline.Median());
        }
        std::fprintf(stderr, "%s: exponent %.2f, of the baseline %.2f\n", name.c_str(),
                     GrowthExponent(growth.sizes, growth.subject), GrowthExponent(growth.sizes, growth.baseline));
        m_report.growths.push_back(growth);
    }

    Options m_options;
    Report m_report;
    std::optional<EditorBench> m_bench;
};

void Bench::MeasureEditors()
{
    const refhost::Machine sample = SampleMachine();
    for (const EditorKind* kind : {&kPrintModeEditor, &kFactoryEditor, &kUserEditor})
        Opening(std::string("open and close ") + kind->name, *kind, sample);
    Memory("peak memory, editors and floors with the sample machine");
    const refhost::Machine large =
        WithUserSchemes(WithFactorySchemes(WithConfigs(sample, kManyConfigs), kManyFactorySchemes), kManySchemes);
    for (const EditorKind* kind : {&kPrintModeEditor, &kFactoryEditor, &kUserEditor})
        Opening(std::string("open and close, large, ") + kind->name, *kind, large);
    Changing("change of scheme, factory", kFactoryEditor, sample, kBetweenSchemes);
    Changing("change of scheme, user", kUserEditor, sample, kBetweenUserSchemes);
    Changing("change of configuration, 1,000 user schemes each", kUserEditor, WithTwoLongLists(sample, kRowsOfConfig),
             kBetweenConfigs);
    Changing("change of configuration, 1,000 modes each", kPrintModeEditor, WithTwoLongLists(sample, kRowsOfConfig),
             {IDC_LIST_CFG, {0, 1}, {true, IDC_LIST_MODE}});
    Changing("change of mode", kPrintModeEditor, sample, kBetweenModes);
}

void Bench::MeasureGrowth()
{
    const refhost::Machine sample = SampleMachine();
    const auto opening = [&](const EditorKind& kind, refhost::Machine (*grow)(refhost::Machine, int)) {
        return [=, &kind](const std::string& name, int rows) {
            return m_bench->OpenAndClose(name, kind, grow(sample, rows), kGrowthRounds);
        };
    };
    const auto changing = [&](const EditorKind& kind, refhost::Machine (*grow)(refhost::Machine, int),
                              const EditorBench::Selection& selection) {
        return [=, &kind](const std::string& name, int rows) {
            return m_bench->Change(name, kind, grow(sample, rows), selection, 1).handled;
        };
    };
    Grow("open print modes, by configurations", opening(kPrintModeEditor, &WithConfigs));
    Grow("open factory schemes, by schemes (1,000 are listed)", opening(kFactoryEditor, &WithFactorySchemes));
    Grow("open user schemes, by user schemes", opening(kUserEditor, &WithUserSchemes));
    Grow("change of scheme, by user schemes", changing(kUserEditor, &WithUserSchemes, kBetweenUserSchemes));
    Grow("change of scheme, by materials", changing(kFactoryEditor, &WithMaterials, kBetweenSchemes));
    Grow("change of configuration, by user schemes of each", changing(kUserEditor, &WithTwoLongLists, kBetweenConfigs));
    Grow("change of mode, by heads", changing(kPrintModeEditor, &WithHeads, kBetweenModes));
}
} // namespace

int main(int count, char** arguments)
{
    try
    {
        const Options options = ParseOptions(count, arguments);
        Bench bench(options);
        const Report& report = bench.Run();
        report.WriteMarkdown(std::cout);
        if (!options.json.empty())
        {
            std::ofstream json(options.json);
            report.WriteJson(json);
        }
        return 0;
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
