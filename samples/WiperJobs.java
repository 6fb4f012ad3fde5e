/** The programs that the documents name in CODE-FILE and ENTRYPOINT. */
public final class WiperJobs {

    /** The way from a job to a control unit: whoever runs the job supplies it. */
    public interface ControlUnit {
        /** Executes a diagnostic service; false when the control unit rejects it or is silent. */
        boolean execute(String service, Object... inputs);

        /** Executes a diagnostic service and returns one output parameter; null where execute returns false. */
        Object read(String service, String outputParameter, Object... inputs);
    }

    private WiperJobs() {
    }

    /** SerialNumber, internal to physical: two decimal digits a byte. */
    public static String unpackSerialNumber(byte[] packed) {
        StringBuilder digits = new StringBuilder();
        for (byte pair : packed) {
            digits.append((pair >> 4) & 0x0F).append(pair & 0x0F);
        }
        return digits.toString();
    }

    /** SerialNumber, physical to internal; an odd number of digits gets a zero in front. */
    public static byte[] packSerialNumber(String digits) {
        String even = digits.length() % 2 == 0 ? digits : "0" + digits;
        byte[] packed = new byte[even.length() / 2];
        for (int i = 0; i < packed.length; i++) {
            packed[i] = (byte) (Character.digit(even.charAt(2 * i), 10) << 4 | Character.digit(even.charAt(2 * i + 1), 10));
        }
        return packed;
    }

    /** CalibrateParkPosition: wipes until the motor reports a current, at most as often as the input parameter says. */
    public static Float calibrateParkPosition(ControlUnit wiper, int attempts) {
        for (int attempt = 0; attempt < attempts; attempt++) {
            wiper.execute("MoveWiper", "continuous");
            Object current = wiper.read("ReadWiperStatus", "MotorCurrent");
            wiper.execute("MoveWiper", "off");
            if (current != null) {
                return (Float) current;
            }
        }
        return null;
    }

    /** ReprogramControlUnit: prepares the control unit for the transfer that the flash session describes. */
    public static boolean reprogramControlUnit(ControlUnit wiper) {
        if (!wiper.execute("StartSession", "programming")) {
            return false;
        }
        Object seed = wiper.read("RequestSeed", "Seed");
        return seed != null && wiper.execute("SendKey", seed);
    }

    /** CollectTroubleCodes: counts the trouble codes of several control units. */
    public static int collectTroubleCodes(int statusMask, ControlUnit... controlUnits) {
        int count = 0;
        for (ControlUnit controlUnit : controlUnits) {
            Object codes = controlUnit.read("ReadTroubleCodes", "TroubleCodes", statusMask);
            if (codes instanceof Object[]) {
                count += ((Object[]) codes).length;
            }
        }
        return count;
    }
}
