# Completion of kestrin's command line for bash.
_kestrin() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} files='--tech --neutral --geometry --traces'
  COMPREPLY=()
  case $before in
    --tech | --neutral | --geometry | --traces) ;;
    --format) mapfile -t COMPREPLY < <(compgen -W 'text json' -- "$word"); return ;;
    *)
      if [ "$COMP_CWORD" = 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W 'summary dump check --help --version' -- "$word")
        return
      fi
      case ${COMP_WORDS[1]} in
        summary | dump) mapfile -t COMPREPLY < <(compgen -W "$files --strict --help" -- "$word") ;;
        check) mapfile -t COMPREPLY < <(compgen -W "$files --strict --format --help" -- "$word") ;;
      esac
      ;;
  esac
  mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$word")
}
complete -o filenames -F _kestrin kestrin
