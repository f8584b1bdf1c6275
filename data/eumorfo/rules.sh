# Shell functions shared by build-data.sh and agreement.sh (sourced, not run).

# compile_rules SOURCE OPERATOR OUT: joins the non-comment lines of a rule
# file (cases.regexp, extra.regexp) with OPERATOR (" .o. " or " | ") and
# compiles the expression with hfst into OUT.
compile_rules() {
  grep -v '^#' "$1" | awk -v op="$2" 'NF { printf "%s%s", (n++ ? op : ""), $0 } END { print " ;" }' > "$3.txt"
  hfst-regexp2fst -i "$3.txt" -o "$3"
}
