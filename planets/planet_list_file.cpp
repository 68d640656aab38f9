#include "planets/planet_list_file.h"

#include "planets/number_field.h"
#include "planets/text_encoding.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <limits>
#include <system_error>

namespace ksm {

namespace {

constexpr int LargestFigure = std::numeric_limits<std::uint8_t>::max();
constexpr std::uintmax_t LargestPlanetList = std::uintmax_t{1024} * 1024;
constexpr std::size_t ProblemsShown = 10;
constexpr std::size_t NumberCharactersShown = 20;

std::string Range(int least, int most) {
    return std::to_string(least) + " to " + std::to_string(most);
}

std::string PlanetRange() {
    return Range(1, MaxPlanets) + " planets";
}

// Takes the first line off `text`. Carriage return ends a line, with or without a line feed behind
// it; a line feed alone does not.
std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = text.find('\r');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    if (end != std::string_view::npos && text.starts_with('\n')) {
        text.remove_prefix(1);
    }
    return line;
}

// Takes the first of the comma-separated fields off `line`.
std::string_view TakeField(std::string_view& line) {
    const std::string_view field = FieldBeforeComma(line);
    line = TextAfterComma(line);
    return field;
}

Specialty SpecialtyOf(std::string_view field) {
    std::string word(field);
    for (char& c : word) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    if (word == "b" || word == "blue") {
        return Specialty::Blue;
    }
    if (word == "g" || word == "green") {
        return Specialty::Green;
    }
    if (word == "r" || word == "red") {
        return Specialty::Red;
    }
    return Specialty::None;
}

class LineReader {
public:
    explicit LineReader(PlanetListResult& into) : result(into) {}

    void Read(std::string_view line) {
        ++lineNumber;
        if (line.starts_with('\'')) {
            return;
        }
        PlanetRecord planet;
        planet.Name = TakeField(line);
        planet.Resources = Figure("resources", TakeField(line));
        planet.Influence = Figure("influence", TakeField(line));
        planet.Specialty = SpecialtyOf(FieldBeforeComma(line));
        if (++planets == MaxPlanets + 1) {
            Report("planet " + std::to_string(planets), PlanetRange());
        }
        if (planets <= MaxPlanets) {
            result.Planets.push_back(std::move(planet));
        }
    }

private:
    std::uint8_t Figure(const std::string& name, std::string_view field) {
        const FieldNumber number = ReadNumberField(field);
        if (number.Value >= 0 && number.Value <= LargestFigure) {
            return static_cast<std::uint8_t>(number.Value);
        }
        const bool cut = number.Text.size() > NumberCharactersShown;
        Report(name + " " + number.Text.substr(0, NumberCharactersShown) + (cut ? "..." : ""),
               Range(0, LargestFigure));
        return 0;
    }
    void Report(std::string what, std::string allowed) {
        result.Problems.push_back({lineNumber, std::move(what), std::move(allowed)});
    }

    PlanetListResult& result;
    int lineNumber = 0;
    int planets = 0;
};

std::string Sentence(const PlanetListProblem& problem) {
    std::string text;
    if (problem.Line > 0) {
        text += "Line " + std::to_string(problem.Line) + ": ";
    }
    text += problem.What;
    if (!problem.Allowed.empty()) {
        text += " (allowed: " + problem.Allowed + ")";
    }
    return text;
}

} // namespace

std::string_view FieldBeforeComma(std::string_view text) {
    return text.substr(0, text.find(','));
}

std::string_view TextAfterComma(std::string_view text) {
    const std::size_t comma = text.find(',');
    return comma == std::string_view::npos ? std::string_view{} : text.substr(comma + 1);
}

PlanetListResult ReadPlanetList(std::string_view bytes) {
    PlanetListResult result;
    const std::string text = DecodeText(bytes);
    std::string_view rest = text;
    LineReader reader(result);
    while (!rest.empty()) {
        reader.Read(TakeLine(rest));
    }
    if (result.Planets.empty() && result.Problems.empty()) {
        const bool lineFeedsOnly =
            text.find('\n') != std::string::npos && text.find('\r') == std::string::npos;
        result.Problems.push_back(
            {0, lineFeedsOnly ? "no planet, since no line ends with CR LF" : "no planet",
             PlanetRange()});
    }
    return result;
}

PlanetListResult ReadPlanetListFile(const std::filesystem::path& path) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (!error && size > LargestPlanetList) {
        return {{}, {{0, "the file has " + std::to_string(size) + " bytes", "1 MiB"}}};
    }
    std::string bytes(error ? 0 : size, '\0');
    if (!error) {
        errno = 0;
        std::ifstream file(path, std::ios::binary);
        if (!file.read(bytes.data(), static_cast<std::streamsize>(size))) {
            error.assign(errno != 0 ? errno : EIO, std::generic_category());
        }
    }
    if (error) {
        return {{}, {{0, "the file cannot be read: " + error.message(), ""}}};
    }
    return ReadPlanetList(bytes);
}

void TakePlanets(Game& game, std::span<const PlanetRecord> planets) {
    game.Planets = {};
    std::ranges::copy(planets, game.Planets.begin());
    game.NumPlanets = static_cast<int>(planets.size());
    PlayerRecord& pool = game.Player(NeutralOwner);
    pool.Figures.PlanetCount = game.NumPlanets;
    pool.PlanetList = EmptyPlanetList();
    for (std::size_t i = 0; i < planets.size(); ++i) {
        pool.PlanetList.at(i) = static_cast<std::uint8_t>(i);
    }
}

std::string DescribeProblems(const std::filesystem::path& path,
                             std::span<const PlanetListProblem> problems) {
    std::string text = "The planet list " + path.string() + " cannot be used.\n";
    for (const PlanetListProblem& problem :
         problems.first(std::min(problems.size(), ProblemsShown))) {
        text += '\n';
        text += Sentence(problem);
    }
    if (problems.size() > ProblemsShown) {
        text += "\nand " + std::to_string(problems.size() - ProblemsShown) + " more";
    }
    return text;
}

} // namespace ksm
