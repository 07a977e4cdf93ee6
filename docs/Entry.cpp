#include "Entry.h"

#include <algorithm>
#include <cctype>

#include "Argument.h"
#include "Letters.h"
#include "Text.h"

namespace reference {

namespace {

// Abbreviations in the operations' names that stand for one thing only.
const std::pair<const char*, const char*> kGlossary[] = {
        {"ADB", "the Android Debug Bridge"},
        {"AVB", "Android Verified Boot"},
        {"CEC", "HDMI Consumer Electronics Control"},
        {"DBC", "dynamic backlight control"},
        {"DCR", "dynamic contrast ratio"},
        {"DOA", "the direction of arrival of a sound"},
        {"DSP", "the digital signal processor"},
        {"EDID", "the display's identification data (Extended Display Identification Data)"},
        {"EQ", "the equalizer"},
        {"HDCP", "High-bandwidth Digital Content Protection"},
        {"HID", "a human interface device"},
        {"IR", "infrared, the remote control's"},
        {"MCU", "the microcontroller"},
        {"NFC", "Near Field Communication"},
        {"OTA", "an update over the air"},
        {"OTG", "USB On-The-Go"},
        {"PIR", "the passive infrared sensor, which sees motion"},
        {"POE", "Power over Ethernet"},
        {"PQ", "picture quality"},
        {"PTZ", "the camera's pan, tilt and zoom"},
        {"RTC", "the real-time clock"},
        {"SN", "the serial number"},
        {"SPDIF", "the S/PDIF digital audio output"},
        {"STR", "suspend to RAM"},
        {"WOL", "Wake-on-LAN"},
};

// The words of an operation's name: "setDCREnable" gives set, DCR, Enable.
Words tokens(const std::string& name) {
    Words found;
    std::string word;
    for (size_t i = 0; i < name.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(name[i]);
        const bool upper = isupper(c);
        const bool nextLower =
                i + 1 < name.size() && islower(static_cast<unsigned char>(name[i + 1]));
        bool prevLower = !word.empty() && islower(static_cast<unsigned char>(word.back()));
        if (!isalnum(c) || (upper && (prevLower || (nextLower && !word.empty())))) {
            if (!word.empty()) found.push_back(word);
            word.clear();
        }
        if (isalnum(c)) word += static_cast<char>(c);
    }
    if (!word.empty()) found.push_back(word);
    return found;
}

std::string glossary(const std::set<std::string>& operations, std::set<std::string>& said) {
    Words lines;
    for (const std::string& op : operations)
        for (std::string token : tokens(op.substr(op.find('.') + 1))) {
            for (char& c : token) c = static_cast<char>(toupper(static_cast<unsigned char>(c)));
            for (const auto& [abbreviation, meaning] : kGlossary)
                if (token == abbreviation && said.insert(token).second)
                    lines.push_back(std::string(abbreviation) + " is " + meaning);
        }
    return lines.empty() ? "" : join(lines, "; ") + ".";
}

// A field's name: the parameter's, or the member's of a record (`rect_p1.point_x`), or in short
// the record's.
std::string nameOf(const Field& f, bool brief = false) {
    const size_t dot = f.name.find('.');
    if (dot == std::string::npos) return f.name;
    return brief ? f.name.substr(0, dot) : f.name.substr(dot + 1);
}

// "<module>,<value>": the fields as the heading names them.
std::string names(const Argument& arg, bool brief = false) {
    Words parts;
    for (const Field& f : arg.fields) {
        if (!f.read) parts.push_back("<ignored>");
        else if (!f.name.empty()) parts.push_back("<" + nameOf(f, brief) + ">");
        else if (f.kind == Field::Kind::Words) parts.push_back(join(f.words, "|"));
        else parts.push_back(f.kind == Field::Kind::Text ? "<text>" : "<number>");
    }
    if (parts.empty()) parts.push_back("<ignored>");
    return join(parts, std::string(1, arg.separator ? arg.separator : ','));
}

// What the rules at the top do not say of the fields: a sentence for each, fields that are read
// alike in one.
Words fieldNotes(const Argument& arg) {
    std::vector<std::pair<Words, std::string>> notes;  // the fields' names, what is said of them
    bool refusesText = false;
    for (const Field& f : arg.fields) {
        if (!f.read) continue;
        Words said;
        if (f.kind == Field::Kind::Text) said.push_back("text, as typed");
        if (f.kind == Field::Kind::Hex) said.push_back("a hexadecimal number");
        if (f.kind == Field::Kind::Real) said.push_back("a real number");
        if (!f.accepts.empty()) said.push_back("only " + f.accepts);
        if (!f.noNumber.empty()) said.push_back("text that is no number " + f.noNumber);
        if (!f.values.empty()) said.push_back("it passes " + join(f.values, ", "));
        if (!f.told.empty()) said.push_back(f.told);
        refusesText = refusesText || f.noNumber == "is refused";
        if (said.empty()) continue;
        const size_t k = static_cast<size_t>(&f - arg.fields.data());
        const std::string name = !f.name.empty() ? code("<" + nameOf(f) + ">")
                                 : !f.words.empty() ? code(join(f.words, "|"))
                                 : "field " + std::to_string(k + 1);
        const std::string text = join(said, "; ");
        auto same = std::find_if(notes.begin(), notes.end(),
                                 [&](const auto& n) { return n.second == text; });
        if (same == notes.end()) notes.push_back({{name}, text});
        else if (std::find(same->first.begin(), same->first.end(), name) == same->first.end())
            same->first.push_back(name);
    }
    size_t read = 0;
    for (const Field& f : arg.fields) read += f.read;
    Words sentences;
    for (auto& [names, text] : notes) {
        std::string who = read > 2 && names.size() == read ? "every field" : join(names, ", ");
        who[0] = static_cast<char>(toupper(static_cast<unsigned char>(who[0])));
        sentences.push_back(who + ": " + text + ".");
    }
    // Where text is refused, so is an empty field: the rules at the top say so.
    if (arg.emptyRefused && !refusesText) sentences.push_back("An empty argument is refused.");
    return sentences;
}

// A text on one line: every run of blanks and newlines one blank, none at the ends.
std::string collapsed(const std::string& text) {
    std::string out;
    for (char c : text) {
        const bool blank = c == ' ' || c == '\n' || c == '\t';
        if (!blank) out += c;
        else if (!out.empty() && out.back() != ' ') out += ' ';
    }
    if (!out.empty() && out.back() == ' ') out.pop_back();
    return out;
}

// Whether an option list's help only names the C++ types of the fields (`unsigned int,bool`):
// the fields' notes say more, having run them.
bool namesTypesOnly(const std::string& help) {
    static const std::set<std::string> kTypes = {"unsigned", "int", "bool", "float", "std::string"};
    std::string word;
    for (char c : help + ",") {
        if (c != ' ' && c != ',' && c != '\n') {
            word += c;
        } else if (!word.empty()) {
            if (!kTypes.count(word)) return false;
            word.clear();
        }
    }
    return true;
}

}  // namespace

Entry entry(Runs& runs, const Module& module, const Row& row, std::set<std::string>& told) {
    Analysis analysis(runs, module, row);
    Letters letters(runs, module);
    Entry e;
    std::string letter;
    for (char c : row.shortSpec)
        if (c != ':') letter += c;

    Form form;
    Argument arg;
    bool takesArgument = row.hasArg != 0;
    if (takesArgument) {
        form.lead = "--" + row.longName;
        arg = analysis.argument(form);
    } else if (letters.carriesArgument(row)) {
        form = {"-" + letter.substr(0, 1), false};
        arg = analysis.argument(form);
        takesArgument = arg.whole || !arg.fields.empty();
    }

    // The letters, then the long form; a head too long for a line leaves its letters to the notes.
    Words notes;
    std::string head = "### ";
    std::string longForm = code("--" + row.longName + (row.hasArg ? "=" + names(arg) : ""));
    std::string shortForm;
    if (!letter.empty())
        shortForm = code("-" + letter + (takesArgument && row.hasArg == 0 ? " " + names(arg) : ""));
    if (head.size() + longForm.size() > kWidth && row.hasArg) {
        // Too long for a line with its records' members: the records' names, the members below.
        longForm = code("--" + row.longName + "=" + names(arg, true));
        Words members;
        for (const Field& f : arg.fields)
            if (f.read && nameOf(f) != nameOf(f, true)) members.push_back(code(nameOf(f)));
        notes.push_back("Its fields: " + join(members, ", ") + ".");
    }
    if (!shortForm.empty() && head.size() + shortForm.size() + 2 + longForm.size() > kWidth)
        notes.push_back("Its letter: " + shortForm + ".");
    else if (!shortForm.empty())
        head += shortForm + ", ";
    e.text = head + longForm + "\n";

    if (row.hasArg != 1) {
        Words words = {"--" + row.longName};
        const Result& plain = runs.run(module, words);
        for (const Call& call : Runs::calls(module, plain.calls))
            e.operations.insert(call.interface + "." + call.operation);
        e.text += example(module, words, plain);
        if (takesArgument)
            notes.push_back("Its long form takes no argument" +
                            std::string(Runs::refused(module, plain) ? " and is refused" : "") +
                            "; its letter carries one.");
    }
    Words words = {"--" + row.longName};
    if (takesArgument) {
        words = form.words(arg.any ? arg.example : "1");
        e.text += example(module, words, analysis.run(form, arg.any ? arg.example : "1"));
        if (!arg.any) notes.push_back("Every argument tried is refused.");
        for (const std::string& note : fieldNotes(arg)) notes.push_back(note);
    }
    e.operations.insert(analysis.operations().begin(), analysis.operations().end());
    if (!row.help.empty() && !namesTypesOnly(row.help))
        notes.push_back("The option list says " + code(collapsed(row.help)) + ".");

    bool changes = false;
    for (const std::string& op : e.operations)
        changes = changes || !reads(op.substr(op.find('.') + 1));
    if (changes) {
        Words kept;
        for (const auto& [getter, value] : runs.kept(module, words)) {
            std::string key = getter.rfind("I" + module.name + ".", 0) == 0
                                      ? getter.substr(module.name.size() + 2)
                                      : getter;
            kept.push_back(code(key) + " answers " + code(value));
        }
        notes.push_back("Changes the panel" +
                        (kept.empty() ? std::string(".") : "; then " + join(kept, ", ") + "."));
    }
    std::string meaning = glossary(e.operations, told);
    if (!meaning.empty()) notes.push_back(meaning);
    std::string typed = letters.sentence(row, takesArgument);
    if (!typed.empty()) notes.push_back(typed);
    if (!notes.empty()) e.text += wrap(join(notes, " "));
    return e;
}

}  // namespace reference
