# Follows Lumikey's lighting: prints a line for each change. For PowerShell 5.1 and later.
$zones = 'left', 'centre', 'right', 'stripe'
$off, $wake = 3758108672, 3758616583

# The five words of one answer.
function Get-Words {
    $server = [System.Net.Sockets.TcpClient]::new()
    try {
        $server.ReceiveTimeout = 2000
        $server.Connect('127.0.0.9', 52316)
        $all = [System.IO.MemoryStream]::new()
        $server.GetStream().CopyTo($all)  # until the server closes
    } finally { $server.Close() }
    $data = $all.ToArray()
    $size = $data.Length - 6
    if ($size -lt 0 -or $data[0] * 256 + $data[1] -ne $size + 4) { throw 'broken answer' }
    $line = [System.Text.Encoding]::BigEndianUnicode.GetString($data, 6, $size)
    if ($line -notmatch '^\d+(,\d+){4}$') { throw 'broken answer' }
    [uint32[]] ($line -split ',')
}

# What a real agent gives to the keyboard instead.
function Format-Words($words) {
    $parts = @()
    if (@($words[0..3] -ne $wake).Count -eq 0) { return 'wake' }
    if (@($words[0..3] -ne $off).Count -eq 0) { $parts += 'off' }
    foreach ($zone in 0..3) {
        $code, $blue, $red, $green = '{0:x8}' -f $words[$zone] -split '(..)' -ne ''
        # Any other code is no colour: leave the zone as it is.
        if ($code -eq "f$zone") { $parts += $zones[$zone] + " #$red$green$blue" }
    }
    ($parts + ('effect 0x{0:x8}' -f $words[4])) -join ', '
}

$last = ''
while ($true) {
    try { $now = Format-Words (Get-Words) } catch { $now = '' }  # not there, busy or broken
    if ($now -and $now -ne $last) { [Console]::WriteLine($now) }
    $last = $now
    Start-Sleep -Milliseconds $(if ($now) { 100 } else { 1000 })
}
