# Completion of lorvane3d's words in bash. Names come from `lorvane3d --list` and may be anybody's: they are compared and
# quoted here, and no shell ever reads them.

# What the user has typed of a word, without its quotes, into _lorvane3d_raw; the quote that it began with and that is
# still open into _lorvane3d_quote. Fails at a quote within the word, where the line editor sees the word parted.
_lorvane3d_unquote() {
    local word=$1 char
    _lorvane3d_raw='' _lorvane3d_quote=''
    if [[ $word == [\"\']* ]]; then
        _lorvane3d_quote=${word:0:1}
        word=${word:1}
        # A word that is complete.
        if [[ $word == *"$_lorvane3d_quote" && $word != *"\\$_lorvane3d_quote" ]]; then
            word=${word%?}
        fi
    fi
    while [[ -n $word ]]; do
        char=${word:0:1}
        word=${word:1}
        if [[ $char == '\' && $_lorvane3d_quote != "'" ]]; then
            # Between double quotes it stands for itself before what needs none.
            if [[ $_lorvane3d_quote == '"' && $word != [\\\"\$\`]* ]]; then
                _lorvane3d_raw+='\'
            fi
            char=${word:0:1}
            word=${word:1}
        elif [[ $char == [\"\'] && ($_lorvane3d_quote == '' || $char == "$_lorvane3d_quote") ]]; then
            return 1
        fi
        _lorvane3d_raw+=$char
    done
}

# Adds a name to what is offered, as it must be written behind what is typed already.
_lorvane3d_offer() {
    local name=$1 mark
    case $_lorvane3d_quote in
    "'") name=${name//\'/"'\\''"} ;;
    '"')
        for mark in '\' '"' '$' '`'; do
            name=${name//"$mark"/"\\$mark"}
        done
        name=${name//'!'/"\"'!'\""} # the history would be looked at between double quotes
        ;;
    *) printf -v name %q "$name" ;;
    esac
    COMPREPLY+=("$name")
}

# Offers the names of a list, of servers their addresses.
#   _lorvane3d_names LIST [--launch TITLE | --setup NAME]
_lorvane3d_names() {
    local _lorvane3d_raw _lorvane3d_quote line name shared parting
    local -a names=()
    _lorvane3d_unquote "$cur" || return
    while IFS= read -r line; do
        [[ $1 == servers ]] && line=${line#*$'\t'}
        name=${line%%$'\t'*}
        [[ -n $name && $name != *[[:cntrl:]]* && $name == "$_lorvane3d_raw"* ]] && names+=("$name")
    done < <(timeout 5 lorvane3d --list "$@" 2>/dev/null </dev/null | head -n 2000)
    ((${#names[@]})) || return

    # The line editor takes what stands behind these for a word of its own, and only that is replaced.
    parting=${COMP_WORDBREAKS//[^:=]/}
    local before=''
    if [[ -z $_lorvane3d_quote && -n $parting && $cur == *["$parting"]* ]]; then
        local raw=$_lorvane3d_raw
        _lorvane3d_unquote "${cur%"${cur##*["$parting"]}"}"
        before=$_lorvane3d_raw
        _lorvane3d_raw=$raw
    fi

    shared=${names[0]}
    for name in "${names[@]}"; do
        while [[ $name != "$shared"* ]]; do
            shared=${shared%?}
        done
    done
    if ((${#names[@]} > 1)) && ((${#shared} > ${#_lorvane3d_raw})); then
        names=("$shared")
        compopt -o nospace
    fi
    for name in "${names[@]}"; do
        _lorvane3d_offer "${name:${#before}}"
    done
}

_lorvane3d_words() {
    COMPREPLY=($(compgen -W "$1" -- "$cur"))
}

_lorvane3d() {
    local cur prev words cword at _lorvane3d_raw _lorvane3d_quote
    local -a of_title=()
    # A ":" parts no words here: it stands in addresses and may stand in names.
    _init_completion -n := || return
    for ((at = 1; at + 1 < cword; at++)); do
        if [[ ${words[at]} == --launch || ${words[at]} == --setup ]]; then
            _lorvane3d_unquote "${words[at + 1]}" && of_title=("${words[at]}" "$_lorvane3d_raw")
        fi
    done

    case $prev in
    --launch) _lorvane3d_names programs ;;
    --setup) _lorvane3d_names setups ;;
    --mod) _lorvane3d_names mods "${of_title[@]}" ;;
    --map) _lorvane3d_names maps "${of_title[@]}" ;;
    --script) _lorvane3d_names scripts "${of_title[@]}" ;;
    --server) _lorvane3d_names servers "${of_title[@]}" ;;
    --profile) _lorvane3d_names profiles "${of_title[@]}" ;;
    --list) _lorvane3d_words 'programs setups mods maps scripts servers profiles' ;;
    --check | --export) _filedir ;;
    --import) _filedir lv3d ;;
    --help | --version) ;;
    *)
        if [[ $cur == -* ]]; then
            if ((cword == 1)); then
                _lorvane3d_words '--help --version --list --launch --setup --check --export --import'
            elif [[ ${words[1]} == --list ]]; then
                _lorvane3d_words '--launch --setup'
            elif [[ ${words[1]} == --check ]]; then
                _lorvane3d_words '--launch'
            else
                _lorvane3d_words '--mod --map --script --server --profile --dry-run --tell'
            fi
        elif ((cword == 1)); then
            _filedir
        fi
        ;;
    esac
} &&
    complete -F _lorvane3d lorvane3d
