# awk -v most=N -f joined_sources.awk HEADER.h... SOURCE.cpp...
#
# Which sources can stand in one translation unit, at most N in each: a line "NUMBER SOURCE" for each source. Two of
# them can't if both have a name for themselves, in an unnamed namespace or by #define. A source with a name for
# itself that a header has too, which others include and it doesn't, stays alone, as line "0 SOURCE".
#
# The headers are those of the whole tree, paths are relative to it. Reads what clang-format leaves, whose declarations
# in namespaces begin lines, and rather takes a name too many.

function own(name, kind) {
    if (name ~ /^(TEST|TEST_F|TEST_P|INSTANTIATE_TEST_SUITE_P|alignas|decltype|noexcept|requires|operator|static_assert)$/) return
    kind_in[FILENAME, name] = kind
    if (is_header) holders[name] = holders[name] " " FILENAME
    else names[FILENAME] = names[FILENAME] " " name
}

# The names before "=", "[", "{", ";" of a list of variables.
function own_variables(text, parts, i, n) {
    n = split(text, parts, ",")
    for (i = 1; i <= n; ++i) {
        if (match(parts[i], /[A-Za-z_][A-Za-z_0-9]* *(=|\[|\{|;)/)) {
            parts[i] = substr(parts[i], RSTART, RLENGTH)
            sub(/ *(=|\[|\{|;)$/, "", parts[i])
            own(parts[i], "other")
        }
    }
}

function folder_of(path) { sub(/\/[^\/]*$/, "", path); return path }

# Marks in seen[mark, HEADER] what a file includes, and what that includes.
function see(file, mark, i, n, texts, header) {
    n = split(included[file], texts, " ")
    for (i = 1; i <= n; ++i) {
        header = folder_of(file) "/" texts[i]
        if (!(header in known)) header = "src/" texts[i]
        if (!(header in known)) header = "tests/" texts[i]
        if (!(header in known)) header = "dev/" texts[i]
        if (!(header in known) || (mark, header) in seen) continue
        seen[mark, header] = 1
        see(header, mark)
    }
}

# Whether some of the sources, but not this one, include a header that has the name.
function clashes(name, source, i, n, headers) {
    n = split(holders[name], headers, " ")
    for (i = 1; i <= n; ++i) {
        # Functions of one name are told apart by what they take.
        if (kind_in[source, name] == "function" && kind_in[headers[i], name] == "function") continue
        if (("any", headers[i]) in seen && !((source, headers[i]) in seen)) return 1
    }
    return 0
}

FNR == 1 {
    is_header = FILENAME ~ /\.h$/
    hidden = is_header
    more = 0
    if (is_header) known[FILENAME] = 1
    else sources[++count] = FILENAME
}
/^#include "/ { included[FILENAME] = included[FILENAME] " " substr($2, 2, length($2) - 2); next }
/^#define / && !is_header { sub(/\(.*/, "", $2); own($2, "other") }
/^namespace \{/ { hidden = 1; next }
/^\}  \/\/ namespace$/ && !is_header { hidden = 0; next }
{
    gsub(/"([^"\\]|\\.)*"/, "")
    sub(/\/\/.*/, "")
    sub(/ +$/, "")
}
more { own_variables($0); more = /,$/; next }
/^(#|\}|\)| |template|public:|private:|protected:|namespace|using namespace|extern|$)/ { next }
/^(inline |static )?(constexpr |const )/ && !/^[^=]*[A-Za-z_0-9]\(/ {
    own_variables($0)
    more = /,$/
    next
}
/^int main\(/ { own("main", "function"); next }
!hidden && !/^static / { next }
match($0, /^(class|struct|enum class|enum|union) +[A-Za-z_0-9]+/) {
    $0 = substr($0, RSTART, RLENGTH)
    own($NF, "other")
    next
}
/^using / {
    if ($3 == "=") own($2, "other")
    next
}
match($0, /[A-Za-z_][A-Za-z_0-9]*\(/) { own(substr($0, RSTART, RLENGTH - 1), "function"); next }
{
    own_variables($0)
    more = /,$/
}

END {
    for (i = 1; i <= count; ++i) {
        see(sources[i], sources[i])
        see(sources[i], "any")
    }
    for (i = 1; i <= count; ++i) {
        source = sources[i]
        n = split(names[source], mine, " ")
        group = 1
        for (j = 1; j <= n && group; ++j) if (clashes(mine[j], source)) group = 0
        while (group > 0) {
            free = size[group] + 0 < most
            for (j = 1; j <= n && free; ++j) if ((group, mine[j]) in taken) free = 0
            if (free) break
            ++group
        }
        for (j = 1; j <= n; ++j) taken[group, mine[j]] = 1
        ++size[group]
        print group, source
    }
}
