#!/usr/bin/env bash
# The search of the page of PMS colours, as a browser runs it: what is typed, and the codes that stay.
#   pms_search.sh PAGE
# Says so and is skipped (77) where no Chromium is installed.
set -euo pipefail

page=$1
browser=$(command -v chromium || command -v chromium-browser || true)
if [ -z "$browser" ]; then
    echo "skipped: no Chromium is installed"
    exit 77
fi

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# A copy of the page that types each text into the field and writes down the codes that stay on show.
{
    sed '/<\/body>/,$d' "$page"
    cat <<'SCRIPT'
<script>
const answers = document.createElement("pre");
answers.id = "answers";
for (const typed of ["186", "186 C", "PMS 186", "pms186", "186c", "Pantone 186 U", " cool gray 7 c ", "reflex blue",
                     "#C8102E", "200, 16, 46", "no such code"]) {
    field.value = typed;
    field.dispatchEvent(new Event("input"));
    const shown = rows.filter(colour => !colour.row.hidden).map(colour => colour.row.cells[1].textContent.trim());
    answers.textContent += typed.trim() + " -> " + shown.join("; ") + "\n";
}
document.body.append(answers);
</script>
</body>
</html>
SCRIPT
} > "$folder/page.htm"

export HOME=$folder
"$browser" --headless --no-sandbox --disable-gpu --user-data-dir="$folder/profile" --virtual-time-budget=5000 \
    --dump-dom "file://$folder/page.htm" 2>"$folder/browser.log" > "$folder/dom.htm" || { cat "$folder/browser.log"; exit 1; }
sed -n '/<pre id="answers">/,/<\/pre>/p' "$folder/dom.htm" |
    sed -e 's/.*<pre id="answers">//' -e 's/<\/pre>.*//' -e 's/&gt;/>/g' -e '/^$/d' > "$folder/found"

codes_with() { sed -n 's/^<tr><td><i[^>]*><\/i><td>\([^<]*\)<td>.*/\1/p' "$page" | grep -iF -- "$1" | paste -sd';' | sed 's/;/; /g'; }
with_186=$(codes_with 186)
{
    for typed in "186" "186 C" "PMS 186" "pms186" "186c" "Pantone 186 U"; do
        echo "$typed -> $with_186"
    done
    echo "cool gray 7 c -> Cool Gray 7"
    echo "reflex blue -> Reflex Blue"
    echo "#C8102E -> 186"
    echo "200, 16, 46 -> 186"
    echo "no such code -> "
} > "$folder/expected"
[ -n "$with_186" ]
diff "$folder/expected" "$folder/found"
