#include "Argument.h"

#include <algorithm>
#include <climits>
#include <sstream>

#include "Text.h"

namespace reference {

namespace {

constexpr size_t kFields = 6;  // fields given when looking for the ones a row reads
const char kSeparators[] = ",:; /";

Words with(Words values, size_t index, const std::string& value) {
    values[index] = value;
    return values;
}

Words split(const std::string& text, char at) {
    Words parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, at);) parts.push_back(part);
    return parts;
}

std::string range(long long low, long long high) {
    if (low == high) return std::to_string(low);
    if (low == INT_MIN) return "up to " + std::to_string(high);
    if (high == INT_MAX) return std::to_string(low) + " or more";
    return std::to_string(low) + " to " + std::to_string(high);
}

// How many characters two sequences share from their start.
template <typename It>
size_t common(It a, It aEnd, It b, It bEnd) {
    return static_cast<size_t>(std::mismatch(a, aEnd, b, bEnd).first - a);
}

// What a run called, as the entry shows calls: `setAudioGain(1, 2)`, or why nothing.
std::string called(const Module& module, const Result& result) {
    if (Runs::refused(module, result)) return "is refused";
    Words calls;
    for (const Call& call : Runs::calls(module, result.calls))
        calls.push_back("`" + call.text + "`");
    return calls.empty() ? "calls nothing" : "calls " + join(calls, ", ");
}

// What text that is none of a field's words does: what it calls and the first line it prints,
// which says why.
std::string otherText(const Module& module, const Result& result) {
    const std::string& printed = result.err.empty() ? result.out : result.err;
    const std::string said = printed.substr(0, printed.find('\n'));
    return "other text (`abc`) " + called(module, result) +
           (said.empty() ? "" : " and prints " + code(said));
}

// Where two values of one type differ: "rect_p1.point_x" in a record, "" where they are plain
// values; an array's elements are named as the array.
std::string memberPath(const Json::Value& a, const Json::Value& b) {
    if (a.isObject() && b.isObject())
        for (const std::string& member : a.getMemberNames())
            if (!(a[member] == b[member])) {
                const std::string rest = memberPath(a[member], b[member]);
                return member + (rest.empty() ? rest : "." + rest);
            }
    if (a.isArray() && b.isArray())
        for (Json::ArrayIndex i = 0; i < a.size() && i < b.size(); ++i)
            if (!(a[i] == b[i])) return memberPath(a[i], b[i]);
    return "";
}

}  // namespace

Words Form::words(const std::string& value) const {
    if (attached) return {lead + "=" + value};
    return {lead, value};
}

const Result& Analysis::run(const Form& form, const std::string& value) {
    const Result& result = mRuns.run(mModule, form.words(value));
    if (!refused(result))
        for (const Call& call : Runs::calls(mModule, result.calls))
            mOperations.insert(call.interface + "." + call.operation);
    return result;
}

std::string Analysis::joined(const Words& values, char separator) const {
    return join(values, std::string(1, separator ? separator : ','));
}

// Which of the fields of `base`, apart by `separator`, change what reaches the panel.
std::vector<bool> Analysis::fieldsRead(const Form& form, const Words& base, char separator) {
    const std::string before = outcome(run(form, joined(base, separator)));
    std::vector<bool> read(base.size());
    for (size_t k = 0; k < base.size(); ++k) {
        // 0 against a number: apart as numbers and as bools.
        const std::string other = base[k] == "0" ? "2" : "0";
        read[k] = outcome(run(form, joined(with(base, k, other), separator))) != before;
    }
    while (!read.empty() && !read.back()) read.pop_back();
    return read;
}

// The values of field `k` that are not refused, where some are: a ladder of values, narrowed
// between neighbours that part.
std::string Analysis::accepted(const Argument& arg, size_t k) {
    const std::vector<long long> ladder = {INT_MIN, -1, 0,  1,   2,   3,     4,      5,
                                           10,      25, 33, 101, 256, 65536, INT_MAX};
    auto takes = [&](long long value) {
        return !refused(
                run(arg.form, joined(with(arg.base, k, std::to_string(value)), arg.separator)));
    };
    std::vector<std::pair<long long, bool>> points;
    for (long long value : ladder) points.push_back({value, takes(value)});
    auto taken = [](const auto& p) { return p.second; };
    if (std::all_of(points.begin(), points.end(), taken) ||
        std::none_of(points.begin(), points.end(), taken))
        return "";
    std::vector<std::pair<long long, long long>> ranges;
    long long start = points[0].second ? INT_MIN : 0;
    bool open = points[0].second;
    for (size_t i = 1; i < points.size(); ++i) {
        if (points[i].second == open) continue;
        long long low = points[i - 1].first, high = points[i].first;
        while (high - low > 1) {
            long long middle = low + (high - low) / 2;
            (takes(middle) == open ? low : high) = middle;
        }
        if (open) ranges.push_back({start, low});
        start = high;
        open = !open;
    }
    if (open) ranges.push_back({start, INT_MAX});
    Words parts;
    for (auto [low, high] : ranges) parts.push_back(range(low, high));
    std::string last = parts.back();
    parts.pop_back();
    return parts.empty() ? last : join(parts, ", ") + " and " + last;
}

// How field `k` is read: text, or a number (decimal, hexadecimal or real), and what text that is
// no number does.
Field Analysis::field(const Argument& arg, size_t k) {
    Field f;
    f.read = true;
    auto runOf = [&](const std::string& value) -> const Result& {
        return run(arg.form, joined(with(arg.base, k, value), arg.separator));
    };
    if (runOf("abc").calls.find("\"abc\"") != std::string::npos) {
        f.kind = Field::Kind::Text;
        return f;
    }
    const Result& hex = runOf("ff");
    if (!refused(hex) && hex.calls.find("255") != std::string::npos) f.kind = Field::Kind::Hex;
    const std::string word = f.kind == Field::Kind::Hex ? "xyz" : "abc";
    const Result& text = runOf(word);
    if (refused(text))
        f.noNumber = "is refused";
    else if (outcome(text) != outcome(runOf("0")))
        f.noNumber = called(mModule, text);
    const Result& real = runOf("1.5");
    if (f.kind == Field::Kind::Number && !refused(real) &&
        real.calls.find("1.5") != std::string::npos)
        f.kind = Field::Kind::Real;
    f.accepts = accepted(arg, k);
    return f;
}

// The parameter field `k` reaches: the first argument of a call that changes with it alone.
std::string Analysis::nameOf(const Argument& arg, size_t k, const std::string& other) {
    std::vector<Call> before =
            Runs::calls(mModule, run(arg.form, joined(arg.base, arg.separator)).calls);
    std::vector<Call> after = Runs::calls(
            mModule, run(arg.form, joined(with(arg.base, k, other), arg.separator)).calls);
    for (size_t i = 0; i < before.size() && i < after.size(); ++i) {
        if (before[i].operation != after[i].operation) return "";
        const Json::Value& a = before[i].arguments;
        const Json::Value& b = after[i].arguments;
        for (Json::ArrayIndex j = 0; a.isArray() && b.isArray() && j < a.size() && j < b.size();
             ++j) {
            if (a[j] == b[j]) continue;
            const std::string name = parameterName(before[i].interface, before[i].operation, j);
            const std::string member = memberPath(a[j], b[j]);
            return member.empty() ? name : name + "." + member;
        }
    }
    return "";
}

// Numbers of field `k` that the row passes on as other values (a code for a text): each with
// the value it becomes, the rest as one.
Words Analysis::valuesOf(const Argument& arg, size_t k) {
    auto becomes = [&](const std::string& value) {
        std::vector<Call> calls = Runs::calls(
                mModule, run(arg.form, joined(with(arg.base, k, value), arg.separator)).calls);
        for (const Call& call : calls)
            for (const Json::Value& each : call.arguments)
                if (each.isString()) return each.asString();
        return std::string();
    };
    const std::string rest = becomes("99");
    if (rest.empty()) return {};
    Words values;
    for (int value = -1; value <= 9; ++value) {
        std::string text = becomes(std::to_string(value));
        if (!text.empty() && text != rest)
            values.push_back("`" + std::to_string(value) + "` \"" + text + "\"");
    }
    if (!values.empty()) values.push_back("any other \"" + rest + "\"");
    return values;
}

// A row that names what its argument is made of: each field's name or words, words tried one by
// one to say what each does.
void Analysis::declared(Argument& arg) {
    const Words parts = split(std::string(mRow.argument), ',');
    arg.separator = parts.size() > 1 ? ',' : 0;
    arg.fields.resize(parts.size());
    arg.base.resize(parts.size());
    for (size_t k = 0; k < parts.size(); ++k) {
        Field& f = arg.fields[k];
        std::string part = parts[k];
        f.read = true;
        if (part[0] == '<') {
            size_t close = part.find('>');
            f.name = part.substr(1, close - 1);
            part = part.substr(close + 1);
            if (part.empty()) continue;
            part = part.substr(1);  // after '='
            f.example = true;
        }
        f.kind = Field::Kind::Words;
        f.words = split(part, '|');
    }
    for (size_t k = 0; k < parts.size(); ++k)
        arg.base[k] = arg.fields[k].words.empty() ? "1" : arg.fields[k].words[0];
    arg.any = !refused(run(arg.form, joined(arg.base, arg.separator)));
    for (size_t k = 0; k < parts.size(); ++k) {
        Field& f = arg.fields[k];
        if (f.words.empty()) {
            std::string name = f.name;
            f = field(arg, k);
            f.name = name;
            continue;
        }
        f.told = tell(arg, k);
    }
    // Every word with every other field's words, so that each operation they reach is known.
    std::vector<Words> combinations = {arg.base};
    for (size_t k = 0; k < arg.fields.size(); ++k) {
        const Field& f = arg.fields[k];
        if (f.kind != Field::Kind::Words || f.example) continue;
        std::vector<Words> more;
        for (const Words& values : combinations)
            for (const std::string& word : f.words) more.push_back(with(values, k, word));
        combinations = more;
    }
    for (const Words& values : combinations) run(arg.form, joined(values, arg.separator));
}

// What each word of field `k` does. Where every word calls the same and only one value differs,
// the words are told with the value each passes: "`vga` 4, `hdmi1` 5", and where they are
// examples, what a number and other text pass; otherwise each with its calls. Then what anything
// else is taken as.
std::string Analysis::tell(const Argument& arg, size_t k) {
    const Field& f = arg.fields[k];
    auto runOf = [&](const std::string& word) -> const Result& {
        return run(arg.form, joined(with(arg.base, k, word), arg.separator));
    };
    Words tried = f.words;
    if (f.example) tried.insert(tried.end(), {"7", "abc"});
    Words calls;
    for (const std::string& word : tried) {
        Words texts;
        const Result& result = runOf(word);
        for (const Call& call : Runs::calls(mModule, result.calls)) texts.push_back(call.text);
        calls.push_back(refused(result) || texts.empty() ? "" : join(texts, ", "));
    }
    // The one value that differs among the words, whole: from after "(" or ", " to before ","
    // or ")".
    const size_t n = f.words.size();
    bool apart = n > 1 && std::none_of(calls.begin(), calls.begin() + n,
                                       [](const std::string& c) { return c.empty(); });
    size_t head = 0, tail = 0;
    const std::string& first = calls[0];
    if (apart) {
        head = tail = first.size();
        for (size_t i = 0; i < n; ++i) {
            const std::string& c = calls[i];
            head = std::min(head, common(c.begin(), c.end(), first.begin(), first.end()));
            tail = std::min(tail, common(c.rbegin(), c.rend(), first.rbegin(), first.rend()));
        }
        while (head > 0 && first[head - 1] != '(' && first[head - 1] != ' ') --head;
        tail = std::min(tail, first.size() - head);
        while (tail > 0 && first[first.size() - tail] != ',' && first[first.size() - tail] != ')')
            --tail;
        size_t open = first.rfind('(', head ? head - 1 : 0);
        apart = head > 0 && tail > 0 && open != std::string::npos &&
                first.find(')', open) >= first.size() - tail;
        for (size_t i = 0; i < n; ++i) apart = apart && calls[i].size() >= head + tail;
    }
    // A value for each try, "" where its calls are not the words' calls with another value.
    Words values;
    for (size_t i = 0; apart && i < tried.size(); ++i) {
        const std::string& c = calls[i];
        bool same = c.size() >= head + tail && c.compare(0, head, first, 0, head) == 0 &&
                    c.compare(c.size() - tail, tail, first, first.size() - tail, tail) == 0;
        values.push_back(same ? c.substr(head, c.size() - head - tail) : "");
    }

    Words told;
    bool typed = apart;
    for (size_t i = 0; i < n; ++i) {
        told.push_back("`" + f.words[i] + "` " +
                       (apart ? values[i] : called(mModule, runOf(f.words[i]))));
        typed = typed && values[i] == "\"" + f.words[i] + "\"";
    }
    std::string text;
    if (typed) {
        Words plain;
        for (const std::string& word : f.words) plain.push_back("`" + word + "`");
        text = join(plain, ", ") + ", passed on as typed";
    } else {
        text = join(told, apart ? ", " : "; ");
    }
    if (f.example && apart) {
        const std::string& number = values[n];
        const std::string& other = values[n + 1];
        if (number == "7") text = "a number, or " + text;
        else text = "for instance " + text;
        if (other.empty()) {
            text += "; " + otherText(mModule, runOf("abc"));
        } else if (other != "\"abc\"" || !typed) {
            text += "; other text " + other;
        }
    } else if (f.example) {
        text = "for instance " + text;
    }
    if (!f.example) {
        // Anything else: as which word, if as one.
        const std::string other = outcome(runOf("abc"));
        auto as = std::find_if(f.words.begin(), f.words.end(), [&](const std::string& word) {
            return other == outcome(runOf(word));
        });
        text += as != f.words.end() ? "; anything else as `" + *as + "`"
                                    : "; " + otherText(mModule, runOf("abc"));
    }
    return text;
}

// An argument the row takes, small numbers telling the fields apart.
std::string Analysis::exampleOf(const Argument& arg) {
    if (arg.whole) return refused(run(arg.form, "abc")) ? arg.base[0] : "abc";
    Words values = arg.base;
    for (size_t k = 0; k < arg.fields.size(); ++k) {
        const Field& f = arg.fields[k];
        if (!f.read || f.kind == Field::Kind::Words) continue;
        if (f.kind == Field::Kind::Text) {
            values[k] = "abc";
            continue;
        }
        for (const std::string& candidate :
             {std::to_string(k + 1), std::string("1"), std::string("0")})
            if (!refused(run(arg.form, joined(with(arg.base, k, candidate), arg.separator)))) {
                values[k] = candidate;
                break;
            }
    }
    if (refused(run(arg.form, joined(values, arg.separator)))) values = arg.base;
    return joined(values, arg.separator);
}

Argument Analysis::argument(const Form& form) {
    Argument arg;
    arg.form = form;
    if (!mRow.argument.empty()) {
        declared(arg);
    } else {
        std::vector<bool> best;
        for (char separator : std::string(kSeparators)) {
            for (const char* value : {"1", "0", "2", "abc"}) {
                Words base(kFields, value);
                const Result& first = run(form, joined(base, separator));
                if (refused(first)) continue;
                if (!arg.any &&
                    first.calls.find('"' + joined(base, separator) + '"') != std::string::npos) {
                    arg.any = arg.whole = true;
                    arg.base = {joined(base, separator)};
                    arg.fields = {Field{true, "", Field::Kind::Text, "", "", {}, false, "", {}}};
                    break;
                }
                // Another separator is looked at only where it reaches a second field.
                const std::string other = value == std::string("0") ? "2" : "0";
                if (separator != ',' &&
                    outcome(first) == outcome(run(form, joined(with(base, 1, other), separator))))
                    break;
                std::vector<bool> read = fieldsRead(form, base, separator);
                if (!arg.any || read.size() > best.size()) {
                    arg.any = true;
                    best = read;
                    arg.separator = read.size() > 1 ? separator : 0;
                    arg.base = Words(std::max<size_t>(read.size(), 1), value);
                }
                break;
            }
            if (arg.whole || best.size() > 1) break;
        }
        if (!arg.any) return arg;
        if (!arg.whole)
            for (size_t k = 0; k < best.size(); ++k)
                arg.fields.push_back(best[k] ? field(arg, k) : Field());
    }
    for (size_t k = 0; k < arg.fields.size(); ++k) {
        Field& f = arg.fields[k];
        if (!f.read || !f.name.empty()) continue;
        Words others = {"abd"};
        if (f.kind == Field::Kind::Words) others = {f.words.back()};
        else if (!arg.whole) others = {"2", "0", "3", "1"};
        for (const std::string& other : others)
            if (other != arg.base[k] && f.name.empty()) f.name = nameOf(arg, k, other);
        if (f.kind == Field::Kind::Number || f.kind == Field::Kind::Hex)
            f.values = valuesOf(arg, k);
    }
    arg.example = exampleOf(arg);
    arg.emptyRefused = refused(run(form, ""));
    return arg;
}

}  // namespace reference
