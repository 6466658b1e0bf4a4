// Not run on Windows; compiled with Mono and run against the library for Linux.
//
// tivex for .NET: the functions of include/tivex.h, which says what each does, and classes
// that hand texts over in UTF-8 and release what the library gives. The processor that the
// program is compiled for and that of the library must be the same.

using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;
using Microsoft.Win32.SafeHandles;

namespace Tivex
{
    public static class Native
    {
        // tivex.dll on Windows, libtivex.so elsewhere.
        const string Library = "tivex";
        const CallingConvention C = CallingConvention.Cdecl;
        const UnmanagedType Utf8 = UnmanagedType.LPUTF8Str;

        public const int TIVEX_HEADER_VERSION_INT = 22800;
        public const string TIVEX_HEADER_VERSION_STR = "2.28";

        public const int TIVEX_OPTION_RULEBOOK = 3;

        public const int TIVEX_DIRECT_DEBIT = 1;
        public const int TIVEX_CREDIT_TRANSFER = 2;

        public const int TIVEX_DD_CORE = 0;
        public const int TIVEX_DD_COR1 = 1;
        public const int TIVEX_DD_B2B = 2;

        public const int TIVEX_CT_STANDARD = 0;
        public const int TIVEX_CT_INSTANT = 1;

        public const int TIVEX_SCHEME_CREDIT_TRANSFER = 0x01;
        public const int TIVEX_SCHEME_DEBIT_CORE = 0x02;
        public const int TIVEX_SCHEME_DEBIT_B2B = 0x08;

        public const int TIVEX_ACCOUNT_INVALID = -1;
        public const int TIVEX_ACCOUNT_NOT_CHECKED = 0;
        public const int TIVEX_ACCOUNT_VALID = 1;
        public const int TIVEX_ACCOUNT_VALID_BY_VARIANT = 2;

        public const int TIVEX_CONVERSION_AS_GIVEN = 0;
        public const int TIVEX_CONVERSION_ACCOUNT_REPLACED = 1;
        public const int TIVEX_CONVERSION_BANK_UNKNOWN = 10;
        public const int TIVEX_CONVERSION_ACCOUNT_INVALID = 11;
        public const int TIVEX_CONVERSION_BANK_REFUSES = 12;
        public const int TIVEX_CONVERSION_SUCCESSOR_USED = 13;
        public const int TIVEX_CONVERSION_BANK_CODE_REPLACED = 15;
        public const int TIVEX_CONVERSION_ACCOUNT_REFUSED = 50;

        public const int TIVEX_FORMAT_MT940 = 1;
        public const int TIVEX_FORMAT_DETECT = 1000;
        public const int TIVEX_FORMAT_CAMT = 1053;
        public const int TIVEX_FORMAT_MT940_DIALECTS = 1940;

        // A list of these ends with a null key.
        [StructLayout(LayoutKind.Sequential)]
        public struct KeyValue
        {
            public IntPtr Key;
            public IntPtr Value;
        }

        [StructLayout(LayoutKind.Sequential)]
        public struct BankInfo
        {
            public IntPtr Name;
            public IntPtr Postcode;
            public IntPtr City;
            public IntPtr Country;
            public IntPtr Bic;
            public ushort Flags;
        }

        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_init(int option, [MarshalAs(Utf8)] string value);
        [DllImport(Library, CallingConvention = C)]
        public static extern void tivex_cleanup();

        [DllImport(Library, CallingConvention = C)]
        public static extern MessageHandle tivex_new(int type);
        [DllImport(Library, CallingConvention = C)]
        public static extern void tivex_free(IntPtr msg);
        [DllImport(Library, CallingConvention = C)]
        public static extern IntPtr tivex_getError(MessageHandle msg);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setIBAN(MessageHandle msg, [MarshalAs(Utf8)] string iban);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setBIC(MessageHandle msg, [MarshalAs(Utf8)] string bic);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setName(MessageHandle msg, [MarshalAs(Utf8)] string name);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setCreditorIdentifier(MessageHandle msg,
            [MarshalAs(Utf8)] string id);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setDate(MessageHandle msg, [MarshalAs(Utf8)] string date);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setDDType(MessageHandle msg, int code);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setCTType(MessageHandle msg, int code);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setCategoryPurpose(MessageHandle msg,
            [MarshalAs(Utf8)] string code);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setBatchBooking(MessageHandle msg, byte mode);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setMessageId(MessageHandle msg,
            [MarshalAs(Utf8)] string id);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_setStrict(MessageHandle msg, byte mode);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_add(MessageHandle msg, [In] KeyValue[] list);
        [DllImport(Library, CallingConvention = C)]
        public static extern OwnedBlock tivex_toXML(MessageHandle msg);

        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_iban_check([MarshalAs(Utf8)] string iban);

        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_bankid_check([MarshalAs(Utf8)] string country,
            [MarshalAs(Utf8)] string bankCode, out OwnedBlock info);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_iban_getBank([MarshalAs(Utf8)] string iban,
            out OwnedBlock info);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_bic_getBank([MarshalAs(Utf8)] string bic,
            out OwnedBlock info);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_bankid_getMethod([MarshalAs(Utf8)] string bankCode);
        // successor: 9 bytes.
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_bankid_getSuccessor([MarshalAs(Utf8)] string bankCode,
            byte[] successor);

        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_account_check([MarshalAs(Utf8)] string account,
            int method);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_account_check2([MarshalAs(Utf8)] string account,
            [MarshalAs(Utf8)] string bankCode, int method);

        // iban: 35 bytes, bic: 12.
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_iban_convert([MarshalAs(Utf8)] string country,
            [MarshalAs(Utf8)] string account, [MarshalAs(Utf8)] string bankCode,
            [Out] byte[] iban, out byte status);
        [DllImport(Library, CallingConvention = C)]
        public static extern int tivex_iban_getBIC([MarshalAs(Utf8)] string iban,
            [Out] byte[] bic);

        [DllImport(Library, CallingConvention = C)]
        public static extern ParserHandle tivex_stmt_parser_new();
        // LPStr: the process's code page on Windows, UTF-8 elsewhere, as paths are there.
        [DllImport(Library, CallingConvention = C, BestFitMapping = false,
            ThrowOnUnmappableChar = true)]
        public static extern int tivex_stmt_parser_load(ParserHandle parser, int format,
            [MarshalAs(UnmanagedType.LPStr)] string path);
        [DllImport(Library, CallingConvention = C)]
        public static extern IntPtr tivex_stmt_parser_getStatement(ParserHandle parser);
        [DllImport(Library, CallingConvention = C)]
        public static extern IntPtr tivex_stmt_parser_getError(ParserHandle parser);
        [DllImport(Library, CallingConvention = C)]
        public static extern uint tivex_stmt_parser_getPending(ParserHandle parser);
        [DllImport(Library, CallingConvention = C)]
        public static extern void tivex_stmt_parser_free(IntPtr parser);

        // free() of the C run-time that the library is linked to.
        [DllImport("msvcrt.dll", EntryPoint = "free", CallingConvention = C)]
        static extern void FreeOnWindows(IntPtr block);
        [DllImport("libc", EntryPoint = "free", CallingConvention = C)]
        static extern void FreeElsewhere(IntPtr block);

        internal static readonly bool OnWindows =
            Environment.OSVersion.Platform == PlatformID.Win32NT;

        internal static void Free(IntPtr block)
        {
            if (OnWindows) FreeOnWindows(block); else FreeElsewhere(block);
        }

#if NETCOREAPP3_0_OR_GREATER
        // The library's data; older run-times offer no way to them.
        static IntPtr Data(string name)
        {
            return NativeLibrary.GetExport(
                NativeLibrary.Load(Library, typeof(Native).Assembly, null), name);
        }

        public static int Version => Marshal.ReadInt32(Data("tivex_version_int"));
        public static string VersionText => Text(Marshal.ReadIntPtr(Data("tivex_version_str")));
        public static string Edition => Text(Marshal.ReadIntPtr(Data("tivex_edition_str")));
#endif

        public static string Text(IntPtr utf8)
        {
            return Text(utf8, Encoding.UTF8);
        }

        public static string Text(IntPtr text, Encoding encoding)
        {
            if (text == IntPtr.Zero) return null;
            int length = 0;
            while (Marshal.ReadByte(text, length) != 0) ++length;
            var bytes = new byte[length];
            Marshal.Copy(text, bytes, 0, length);
            return encoding.GetString(bytes);
        }
    }

    public sealed class MessageHandle : SafeHandleZeroOrMinusOneIsInvalid
    {
        MessageHandle() : base(true) { }

        protected override bool ReleaseHandle()
        {
            Native.tivex_free(handle);
            return true;
        }
    }

    public sealed class ParserHandle : SafeHandleZeroOrMinusOneIsInvalid
    {
        ParserHandle() : base(true) { }

        protected override bool ReleaseHandle()
        {
            Native.tivex_stmt_parser_free(handle);
            return true;
        }
    }

    // A document or a bank.
    public sealed class OwnedBlock : SafeHandleZeroOrMinusOneIsInvalid
    {
        OwnedBlock() : base(true) { }

        protected override bool ReleaseHandle()
        {
            Native.Free(handle);
            return true;
        }

        public string Text => Native.Text(handle);
        public Native.BankInfo Bank => Marshal.PtrToStructure<Native.BankInfo>(handle);
    }

    public sealed class Message : IDisposable
    {
        public readonly MessageHandle Handle;

        public Message(int type)
        {
            Handle = Native.tivex_new(type);
            if (Handle.IsInvalid) throw new ArgumentException("tivex_new");
        }

        public void Dispose() { Handle.Dispose(); }

        public string Error => Native.Text(Native.tivex_getError(Handle));

        // Throws unless a setter has returned 1: message.Check(tivex_setName(...)).
        public void Check(int result)
        {
            if (result != 1) throw new ArgumentException(Error);
        }

        // Adds a transaction: "name", "Jutta Müller", "iban", ...
        public void Add(params string[] keysAndValues)
        {
            var list = new Native.KeyValue[keysAndValues.Length / 2 + 1];
            try
            {
                for (int i = 0; i + 1 < list.Length; ++i)
                {
                    list[i].Key = Copy(keysAndValues[2 * i]);
                    list[i].Value = Copy(keysAndValues[2 * i + 1]);
                }
                Check(Native.tivex_add(Handle, list));
            }
            finally
            {
                foreach (var pair in list)
                {
                    Marshal.FreeHGlobal(pair.Key);
                    Marshal.FreeHGlobal(pair.Value);
                }
            }
        }

        public string ToXml()
        {
            using (OwnedBlock document = Native.tivex_toXML(Handle))
            {
                if (document.IsInvalid) throw new InvalidOperationException(Error);
                return document.Text;
            }
        }

        static IntPtr Copy(string text)
        {
            byte[] bytes = Encoding.UTF8.GetBytes(text + "\0");
            IntPtr copy = Marshal.AllocHGlobal(bytes.Length);
            Marshal.Copy(bytes, 0, copy, bytes.Length);
            return copy;
        }
    }

    // tivex_stmt_tx_t. What the file does not hold is null, 0 or empty.
    public sealed class Entry
    {
        public DateTime? ValueDate, BookingDate;
        public bool Reversal;
        public double Amount;
        public string TypeCode, CustomerRef, BankRef, BookingText, Primanota;
        public int Gvc, TextKeyExt;
        public string BankCode, AccountNo, Name;
        public string Purpose, Eref, Kref, Mref, Cred, Debt, Purp, Coam, Oamt, Svwz, Abwa, Abwe,
            FullName, ReturnReason;
    }

    // tivex_stmt_t.
    public sealed class Statement
    {
        public string Reference, Account;
        public uint StatementNo, SequenceNo;
        public DateTime? OpeningDate, ClosingDate;
        public double OpeningBalance, ClosingBalance;
        public string OpeningCurrency, ClosingCurrency;
        public readonly List<Entry> Entries = new List<Entry>();

        // Texts are in the bank's encoding: ISO 8859-1, UTF-8 or another.
        public static List<Statement> Load(string path, Encoding encoding)
        {
            using (ParserHandle parser = Native.tivex_stmt_parser_new())
            {
                if (Native.tivex_stmt_parser_load(parser, Native.TIVEX_FORMAT_MT940, path) != 1)
                    throw new InvalidOperationException(
                        Native.Text(Native.tivex_stmt_parser_getError(parser)));
                var statements = new List<Statement>();
                IntPtr next = Native.tivex_stmt_parser_getStatement(parser);
                while (next != IntPtr.Zero)
                    statements.Add(Read(new RecordReader(next, encoding), out next));
                return statements;
            }
        }

        // Members are read in the order in which C declares them.
        static Statement Read(RecordReader from, out IntPtr next)
        {
            var statement = new Statement
            {
                Reference = from.Text(), Account = from.Text(),
                StatementNo = (uint)from.Int(), SequenceNo = (uint)from.Int(),
                OpeningDate = from.Date(), ClosingDate = from.Date(),
                OpeningBalance = from.Double(), ClosingBalance = from.Double(),
                OpeningCurrency = from.Chars(4), ClosingCurrency = from.Chars(4)
            };
            IntPtr entry = from.Pointer();
            from.Pointer(); // the last one
            next = from.Pointer();
            while (entry != IntPtr.Zero)
                statement.Entries.Add(ReadEntry(from.At(entry), out entry));
            return statement;
        }

        static Entry ReadEntry(RecordReader from, out IntPtr next)
        {
            var entry = new Entry
            {
                ValueDate = from.Date(), BookingDate = from.Date(),
                Reversal = from.Byte() != 0, Amount = from.Double(), TypeCode = from.Chars(4),
                CustomerRef = from.Text(), BankRef = from.Text(),
                BookingText = from.Text(), Primanota = from.Text(),
                Gvc = from.Int(), TextKeyExt = from.Int(),
                BankCode = from.Chars(13), AccountNo = from.Chars(35), Name = from.Chars(56),
                Purpose = from.Text(), Eref = from.Text(), Kref = from.Text(),
                Mref = from.Text(), Cred = from.Text(), Debt = from.Text(),
                Purp = from.Text(), Coam = from.Text(), Oamt = from.Text(),
                Svwz = from.Text(), Abwa = from.Text(), Abwe = from.Text()
            };
            next = from.Pointer();
            entry.FullName = from.Text();
            entry.ReturnReason = from.Text();
            return entry;
        }
    }

    // Walks over a record of C. A declared struct would not do: struct tm is longer on Unix
    // than on Windows, and one assembly serves both.
    sealed class RecordReader
    {
        readonly IntPtr record;
        readonly Encoding encoding;
        int offset;

        public RecordReader(IntPtr record, Encoding encoding)
        {
            this.record = record;
            this.encoding = encoding;
        }

        public RecordReader At(IntPtr other) { return new RecordReader(other, encoding); }

        int Take(int size, int alignment)
        {
            int at = (offset + alignment - 1) / alignment * alignment;
            offset = at + size;
            return at;
        }

        public byte Byte() { return Marshal.ReadByte(record, Take(1, 1)); }
        public int Int() { return Marshal.ReadInt32(record, Take(4, 4)); }

        public double Double()
        {
            // 8 bytes apart everywhere but on Unix with 32 bits.
            int alignment = Native.OnWindows ? 8 : IntPtr.Size;
            return BitConverter.Int64BitsToDouble(Marshal.ReadInt64(record, Take(8, alignment)));
        }

        public IntPtr Pointer()
        {
            return Marshal.ReadIntPtr(record, Take(IntPtr.Size, IntPtr.Size));
        }

        public string Text() { return Native.Text(Pointer(), encoding); }

        public string Chars(int size)
        {
            return Native.Text(IntPtr.Add(record, Take(size, 1)), encoding);
        }

        // struct tm: nine ints; on Unix a long and a pointer behind them.
        public DateTime? Date()
        {
            if (!Native.OnWindows) Take(0, IntPtr.Size);
            int at = Take(9 * 4, 4);
            if (!Native.OnWindows) Take(2 * IntPtr.Size, IntPtr.Size);
            int day = Marshal.ReadInt32(record, at + 12);
            int month = Marshal.ReadInt32(record, at + 16) + 1;
            int year = Marshal.ReadInt32(record, at + 20) + 1900;
            DateTime date;
            return DateTime.TryParseExact(year + "-" + month + "-" + day, "yyyy-M-d",
                System.Globalization.CultureInfo.InvariantCulture,
                System.Globalization.DateTimeStyles.None, out date) ? date : (DateTime?)null;
        }
    }
}
