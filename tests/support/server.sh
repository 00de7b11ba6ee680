#!/bin/sh
# The PostgreSQL server of Server.h, in the folder $1. A line on the input is a command: "start SETTINGS", "stop" as an
# administrator does, "kill" as the machine does that fails. The file "ended" is there once the server is gone. When the
# input ends, whoever wrote it is gone: then neither server nor folder stays.

# As postgres insists. What it may not read here, it is given.
if [ "$(id -u)" = 0 ]; then
    owner=nobody
    id postgres >/dev/null 2>&1 && owner=postgres
    chown $owner "$1"
    exec setpriv --reuid=$owner --regid="$(id -g $owner)" --clear-groups sh -c "$(cat "$0")" "$0" "$1"
fi

cd "$1" || exit
exec >>log 2>&1
bin=$(ls -d /usr/lib/postgresql/*/bin "$(pg_config --bindir)" 2>/dev/null | sort -V | tail -1)
"$bin/initdb" -D data -U velton -A trust -E UTF8 --locale=C.UTF-8 --no-sync --no-instructions --wal-segsize=1 ||
    echo 'no PostgreSQL server of version 15 or newer: install postgresql'

# Under mmap the shared memory lies in the folder, so that a killed server leaves none behind.
run() {
    set -- listen_addresses= fsync=off shared_buffers=16MB max_connections=60 dynamic_shared_memory_type=mmap "$@"
    for setting; do set -- "$@" -c "$setting"; shift; done
    "$bin/postgres" -D data -k "$PWD" -p 5432 "$@"
    touch ended
}

end() {
    server=$(head -n 1 data/postmaster.pid)
    if [ "$1" = KILL ]; then
        # It must not start anything while its children are looked for.
        kill -STOP "$server"
        while grep -q '^State:.[^TZ]' "/proc/$server/status"; do :; done
        children=$(cat "/proc/$server/task/"*/children)
        kill -KILL $children
        for child in $children; do while readlink "/proc/$child/exe"; do :; done; done
    fi
    kill -"$1" "$server" && wait
}

while read -r command settings; do
    case $command in
        start) rm -f ended; started=1; run $settings & ;;
        stop) end INT ;;
        kill) end KILL ;;
    esac
done
# One that is just starting can be told a little later.
while [ "$started" ] && [ ! -e ended ]; do end QUIT || sleep 0.1; done
cd / && rm -rf "$1"
