' Speaks to the ACT! stand-in as any late-bound client would. Arguments: database, missing database.
Option Explicit
Dim database, app, aux, views, prefs, ev, failures
database = WScript.Arguments(0)
failures = 0

Sub Check(what, got, wanted)
  If TypeName(got) = TypeName(wanted) And CStr(got) = CStr(wanted) Then Exit Sub
  failures = failures + 1
  WScript.Echo "FAILED " & what & ": got " & TypeName(got) & " '" & got & "', wanted " & TypeName(wanted) & " '" & wanted & "'"
End Sub

Sub CheckError(what, wanted)
  Check what, Err.Number, CLng(wanted)
  Err.Clear
End Sub

Set ev = CreateObject("ACTEVENTLib.ActEvent")
Check "no instance yet", ev.InstanceCount, CLng(0)
Set app = CreateObject("ACTOLE.APPOBJECT")
Check "one instance", ev.InstanceCount, CLng(1)
app.openDB database
Check "database", app.GetOpenDBName(), database
Check "user", app.getcurrentusername, "Jo Preset"

Set views = app.Views
views.Create 4, "V"
Set prefs = app.Preferences
prefs.DefaultContactLayout = "C:\Layouts\A ""b"".cly"
Check "contact layout", prefs.DefaultContactLayout, "C:\Layouts\A ""b"".cly"
Check "use last", prefs.UseLastDBonStartup, True

Set aux = CreateObject("ACTOLE.AUXCMDS")
Check "same server", ev.InstanceCount, CLng(1)
Check "add", aux.AddAuxCommand("Kelmorra", "k.exe", "", "", "", "tip", "", 8), 0
Check "command", aux.AuxCommandExists("Kelmorra"), True

On Error Resume Next
app.openDB WScript.Arguments(1)
CheckError "missing file", 53
app.openDB 1, 2
CheckError "argument count", 450
app.NoSuchThing
CheckError "unknown member", 438
views.Create 6, "V"
CheckError "unknown view", 5
app.RunMacro "C:\Macros\Morning.mpr"
CheckError "scode on order", 91
app.Command "x"
CheckError "argument type", 13
On Error GoTo 0

ev.Close
app.Command 150
If failures > 0 Then WScript.Quit 1
