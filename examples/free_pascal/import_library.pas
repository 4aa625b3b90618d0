{ Prints the Pascal unit for a type library: import_library FILE [--components]. With the option its classes are
  components for the container of Lazarus. }
program import_library;

{$mode objfpc}{$H+}

uses
  Classes, SysUtils, TypeLib;

var
  importer: TTypeLibImporter;
  found: Integer;
begin
  importer := TTypeLibImporter.Create(nil);
  try
    importer.InputFileName := WideString(ParamStr(1));
    importer.ActiveX := ParamStr(2) = '--components';
    importer.Execute;
    { Nothing of the platform's own library is used, and its unit is not at hand. }
    for found := 0 to importer.UnitSource.Count - 1 do
      importer.UnitSource[found] := StringReplace(importer.UnitSource[found], ',stdole2,', ',', []);
    Write(importer.UnitSource.Text);
  finally
    importer.Free;
  end;
end.
