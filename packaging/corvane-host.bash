# Completion of corvane-host for bash.
_corvane_host() {
  local cur prev words cword
  _init_completion || return
  local command= word
  for word in "${words[@]:1:cword-1}"; do
    case $word in marks | export | info) command=$word && break ;; esac
  done
  case $prev in
    --placement) COMPREPLY=($(compgen -W "corner auto edge" -- "$cur")); return ;;
    --shape) COMPREPLY=($(compgen -W "round cross" -- "$cur")); return ;;
    --theme) COMPREPLY=($(compgen -W "light dark" -- "$cur")); return ;;
    --language) COMPREPLY=($(compgen -W "en de es fr ja pt-BR" -- "$cur")); return ;;
    --plugin | --out-dir) _filedir -d; return ;;
    -o | --output) _filedir; return ;;
    --screenshot) _filedir png; return ;;
    --size | --weight | --amount | --step | --pref | --refuse | --refuse-nth) return ;;
  esac
  if [[ $cur == -* ]]; then
    local options="--plugin --language --theme --pref --refuse --refuse-nth --help --version"
    case $command in
      marks) options+=" --placement --shape --size --weight --amount --output --out-dir --json" ;;
      export) options+=" --output --step --print-file --cut-file --summary" ;;
      info) options+=" --json --check" ;;
      *) options+=" --screenshot" ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$cur"))
    return
  fi
  _filedir svg
  [[ $command ]] || COMPREPLY+=($(compgen -W "marks export info" -- "$cur"))
}
complete -F _corvane_host corvane-host
