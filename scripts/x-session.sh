# A virtual display with the program on it, for scripts that work it with mouse and keyboard. Sourced, after build= is
# set to the build folder. Gives: work (a folder that goes at the end), HOME inside it, start_program, wait_for_log,
# screenshot, quit_program.

if [ -z "${VELMORA_DISPLAY_READY:-}" ]; then
  export VELMORA_DISPLAY_READY=1
  exec xvfb-run -a -s '-screen 0 1600x900x24 -nolisten tcp' "$0" "$@"
fi

work=$(mktemp -d)
program=
helpers=()
finish() {
  local process
  for process in $program "${helpers[@]}"; do
    kill "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT

export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 NO_AT_BRIDGE=1
mkdir -p "$HOME" -m 700 "$XDG_RUNTIME_DIR"

# Waits until a line of the program's log matches, or fails after a while.
wait_for_log() {
  local tries
  for tries in $(seq 300); do
    grep -q -- "$1" "$work/log" "$work/out.log" && return
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
  done
  echo "The program never said: $1" >&2
  cat "$work/log" >&2
  return 1
}

# Starts the program, waits for the end of its first search, and gives its window a fixed place and the keyboard.
start_program() {
  "$build/app/velmora" >"$work/out.log" 2>"$work/log" &
  program=$!
  wait_for_log 'GOT SEARCH DONE MESSAGE'
  local window
  window=$(timeout 30 xdotool search --sync --onlyvisible --name '^KORVANE Velmora$' | head -n 1)
  xdotool windowmove "$window" 0 0 windowsize "$window" 1270 880 windowfocus --sync "$window"
  sleep 1
}

# Leaves a picture of the display in a file.
screenshot() {
  mkdir -p "$(dirname "$1")"
  ffmpeg -v error -y -f x11grab -video_size "${2:-1270x880}" -i "$DISPLAY" -frames:v 1 -update 1 "$1"
}

# Ends the program from the keyboard and gives its exit code.
quit_program() {
  local tries process=$program
  xdotool key ctrl+q
  for tries in $(seq 100); do
    kill -0 "$process" 2>/dev/null || break
    sleep 0.1
  done
  program=
  wait "$process"
}
