# Bash completion for kestrin.
_kestrin() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} files='--tech --neutral --geometry --traces'
  COMPREPLY=()
  case $before in
    --tech | --neutral | --geometry | --traces | --map) ;;
    --fail-on) mapfile -t COMPREPLY < <(compgen -W 'error warning note never' -- "$word"); return ;;
    --encoding) mapfile -t COMPREPLY < <(compgen -W 'auto utf-8 latin-1' -- "$word"); return ;;
    --allow | --key) return ;;
    --format) mapfile -t COMPREPLY < <(compgen -W 'text json' -- "$word"); return ;;
    --rotation | --bottom) mapfile -t COMPREPLY < <(compgen -W 'ccw cw' -- "$word"); return ;;
    --bottom-turn) mapfile -t COMPREPLY < <(compgen -W '0 180' -- "$word"); return ;;
    --width-step | --width | --box | --net | --layers) return ;;
    --view) mapfile -t COMPREPLY < <(compgen -W 'layers top bottom' -- "$word"); return ;;
    --theme) mapfile -t COMPREPLY < <(compgen -W 'dark print' -- "$word"); return ;;
    -o | --output) ;;
    *)
      if [ "$COMP_CWORD" = 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W 'summary check board draw diff dump anonymise help --help --version' -- "$word")
        return
      fi
      case ${COMP_WORDS[1]} in
        help) mapfile -t COMPREPLY < <(compgen -W 'summary check board draw diff dump anonymise' -- "$word"); return ;;
        diff) mapfile -t COMPREPLY < <(compgen -W '--format --all --encoding --help' -- "$word") ;;
        anonymise) mapfile -t COMPREPLY < <(compgen -W "$files --key --map --force --help" -- "$word") ;;
        dump) mapfile -t COMPREPLY < <(compgen -W "$files --strict --help" -- "$word") ;;
        summary) mapfile -t COMPREPLY < <(compgen -W "$files --format --strict --encoding --help" -- "$word") ;;
        board)
          mapfile -t COMPREPLY < <(
            compgen -W "$files --strict --encoding --rotation --bottom --bottom-turn --width-step --help" -- "$word") ;;
        draw)
          mapfile -t COMPREPLY < <(
            compgen -W "$files --strict --encoding --output --view --layers --net --box --width --against --theme --tags --rotation \
              --bottom --bottom-turn --width-step --help" -- "$word") ;;
        check)
          mapfile -t COMPREPLY < <(
            compgen -W "$files --strict --encoding --format --fail-on --allow --ignored --quiet --help" -- "$word") ;;
      esac
      ;;
  esac
  mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$word")
}
complete -o filenames -F _kestrin kestrin
