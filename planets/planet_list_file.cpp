#include "planets/planet_list_file.h"

#include "planets/number_field.h"
#include "planets/read_file.h"
#include "planets/text_encoding.h"

#include <algorithm>
#include <array>
#include <limits>

namespace ksm {

namespace {

constexpr int LargestFigure = std::numeric_limits<std::uint8_t>::max();
constexpr int ProblemsShown = 10;
constexpr std::size_t NumberCharactersShown = 20;

std::string Range(int least, int most) {
    return std::to_string(least) + " to " + std::to_string(most);
}

std::string PlanetRange() { return Range(1, MaxPlanets) + " planets"; }

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
    constexpr std::array<std::pair<std::string_view, Specialty>, 6> words{
        {{"b", Specialty::Blue},
         {"blue", Specialty::Blue},
         {"g", Specialty::Green},
         {"green", Specialty::Green},
         {"r", Specialty::Red},
         {"red", Specialty::Red}}};
    const auto found =
        std::ranges::find(words, LowerCase(field), &decltype(words)::value_type::first);
    return found == words.end() ? Specialty::None : found->second;
}

class LineReader {
public:
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
        if (planets.size() < MaxPlanets) {
            planets.push_back(std::move(planet));
        } else if (!isTooLong) {
            isTooLong = true; // reported once, not for every line too many
            Report("planet " + std::to_string(MaxPlanets + 1), PlanetRange());
        }
    }

    Outcome<PlanetList> Result() const {
        if (problems == 0) {
            return planets;
        }
        const int more = problems - ProblemsShown;
        return Failure{more > 0 ? text + "\nand " + std::to_string(more) + " more" : text};
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
    void Report(const std::string& what, const std::string& allowed) {
        if (++problems <= ProblemsShown) {
            text += (text.empty() ? "Line " : "\nLine ") + std::to_string(lineNumber) + ": " +
                    what + " (allowed: " + allowed + ")";
        }
    }

    PlanetList planets;
    std::string text;
    int problems = 0;
    int lineNumber = 0;
    bool isTooLong = false;
};

} // namespace

std::string_view FieldBeforeComma(std::string_view text) { return text.substr(0, text.find(',')); }

std::string_view TextAfterComma(std::string_view text) {
    const std::size_t comma = text.find(',');
    return comma == std::string_view::npos ? std::string_view{} : text.substr(comma + 1);
}

Outcome<PlanetList> ReadPlanetList(std::string_view bytes) {
    const std::string text = DecodeText(bytes);
    std::string_view rest = text;
    LineReader reader;
    while (!rest.empty()) {
        reader.Read(TakeLine(rest));
    }
    Outcome<PlanetList> list = reader.Result();
    if (!list || !list->empty()) {
        return list;
    }
    const bool lineFeedsOnly =
        text.find('\n') != std::string::npos && text.find('\r') == std::string::npos;
    return Failure{std::string("no planet") +
                   (lineFeedsOnly ? ", since no line ends with CR LF" : "") +
                   " (allowed: " + PlanetRange() + ")"};
}

Outcome<PlanetList> ReadPlanetListFile(const std::filesystem::path& path) {
    const Outcome<std::string> bytes = ReadFile(path);
    Outcome<PlanetList> list = bytes ? ReadPlanetList(*bytes) : Failure{bytes.Reason()};
    if (!list) {
        return Failure{"The planet list " + path.string() + " cannot be used.\n\n" + list.Reason()};
    }
    return list;
}

void SetPlanets(Game& game, std::span<const PlanetRecord> planets) {
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

} // namespace ksm
