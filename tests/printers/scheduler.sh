#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A test's own print scheduler, for root and for ordinary users: it listens only on FOLDER/socket,
# keeps all its files in FOLDER and never asks for a password.
# Usage: scheduler.sh FOLDER start          runs the scheduler until the standard input ends
#        scheduler.sh FOLDER queues COUNT   waits for it and adds the queues Queue1, Queue2, ...
set -euo pipefail
PATH=$PATH:/usr/sbin
folder=$1
export CUPS_SERVER=$folder/socket

start() {
    mkdir -p "$folder"/{conf,state,cache,spool,tmp,log}
    cat >"$folder/conf/cupsd.conf" <<CONF
Listen $folder/socket
Browsing Off
WebInterface No
LogLevel error
<Policy default>
  JobPrivateAccess default
  JobPrivateValues none
  SubscriptionPrivateAccess default
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
    cat >"$folder/conf/cups-files.conf" <<CONF
FileDevice Yes
ServerRoot $folder/conf
StateDir $folder/state
CacheDir $folder/cache
RequestRoot $folder/spool
TempDir $folder/tmp
AccessLog $folder/log/access
ErrorLog $folder/log/error
PageLog $folder/log/page
CONF
    cupsd -f -c "$folder/conf/cupsd.conf" -s "$folder/conf/cups-files.conf" >"$folder/log/out" 2>&1 &
    cat >/dev/null
    kill $!
    wait
}

queues() {
    for _ in {1..200}; do
        [ "$(LC_ALL=C lpstat -r)" = "scheduler is running" ] && break
        sleep 0.05
    done
    # A description with a make and model; queues without one are raw.
    printf '%s\n' '*PPD-Adobe: "4.3"' '*Manufacturer: "Halvek"' '*ModelName: "Label"' \
        '*NickName: "Halvek Label 200"' >"$folder/label.ppd"
    for ((i = 1; i <= $1; i++)); do
        if ((i == 2)); then
            lpadmin -p "Queue$i" -E -v "ipp://192.0.2.1/$i" -P "$folder/label.ppd" 2>/dev/null
        else
            lpadmin -p "Queue$i" -E -v file:/dev/null
        fi
    done
}

"${@:2}"
