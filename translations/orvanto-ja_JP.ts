<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Donate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNetworkReply</name>
    <message>
        <source>Error transferring %1 - server replied: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
